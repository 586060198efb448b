// The main tasks in Firefox, as every other file here does them in Chromium.
'use strict';

const assert = require('node:assert/strict');
const {accounts, addresses, applianceFolder, datagramsTo, ipv4Address, php, until, writeAsPages} = require('./appliance.cjs');
const {asksToSignIn, base, beside, enterPassword, messages, open, press, served, signIn, test,
  sessionCookie, useFirefox} = require('./browser.cjs');
const {answersAt, apply, fillStatic, passes, reaches, setStatic} = require('./on_trial.cjs');

useFirefox();

test('Firefox: signing in and out, with a wrong password first', {}, async (page, context) => {
  assert.match(await page.evaluate(() => navigator.userAgent), /Firefox/);
  await page.goto(`${base()}dns.php`);
  assert.equal(await page.evaluate(() => document.activeElement.id), 'user', 'one can type at once');
  await page.fill('#user', 'admin');
  await page.fill('#password', 'wrong');
  await press(page, 'Sign in');
  assert.equal(await asksToSignIn(page), 'The name or the password is wrong.');
  writeAsPages(`${applianceFolder}/HTTPService/dat/attempts`, ''); // nobody waits here
  await page.fill('#password', accounts.get('admin'));
  await page.keyboard.press('Enter');
  await page.waitForSelector('h1:text-is("DNS")');
  const cookie = await sessionCookie(context);
  assert.ok(cookie.httpOnly && cookie.sameSite === 'Lax', 'the cookie is kept as it was meant');
  await press(page, 'Sign out');
  await asksToSignIn(page);
});

test('Firefox: the address is moved, the page arrives there with its session, and the change is kept', {}, async (page) => {
  await setStatic('10.20.0.7');
  await signIn(page);
  await fillStatic(page, '10.20.0.8');
  await apply(page);
  await page.waitForURL('http://10.20.0.8/applying.php', {timeout: 60000});
  await page.waitForSelector('h1:text-is("Kept")');
  assert.match(await page.innerText('#outcome'), /^Kept by admin: reached under the new settings\./);
  assert.deepEqual(addresses('inet'), ['10.20.0.8/24']);
  await answersAt('10.20.0.8');
  await open(page, 'ipv4.php');
  assert.equal(await page.inputValue('#ip'), '10.20.0.8');
});

test('Firefox: an address in a wrong network: the page counts down and shows that the old one is back', {}, async (page) => {
  await setStatic('10.20.0.7');
  await signIn(page);
  await fillStatic(page, '10.99.0.7', '10.99.0.1');
  await press(page, 'Apply');
  assert.match(await page.innerText('main'), /Your computer has the address 10\.20\.0\.1, which is outside of the network of 10\.99\.0\.7/);
  await press(page, 'Apply');
  await until(() => ipv4Address() === '10.99.0.7', 'the wrong address');
  await reaches('trial');
  await page.waitForSelector('[data-when-lost]:visible', {timeout: 60000});
  const left = Number(await page.innerText('[data-countdown]'));
  assert.ok(left > 10 && left < 60, `${left} seconds are left`);
  passes(50);
  await reaches('undone');
  await answersAt('10.20.0.7');
  await page.waitForSelector('h1:text-is("Undone")', {timeout: 60000});
  assert.match(await page.innerText('#outcome'), /because nobody was back under the new settings within 60 seconds\./);
});

test('Firefox: HTTPS on, with its certificate shown, and off', {}, async (page, context) => {
  await signIn(page, 'admin', 'security.php');
  await page.check('#https-1');
  await press(page, 'Save');
  assert.match(await page.innerText('main'), /The web server restarts with HTTPS on/);
  const shown = await beside(page, 'SHA-256 fingerprint');
  assert.equal(shown, (await served('https')).fingerprint256);
  await page.click('text=Continue with HTTPS');
  await page.waitForURL(`https://${ipv4Address()}/applying.php`, {timeout: 60000});
  await enterPassword(page);
  assert.equal(await page.innerText('h1'), 'Kept');
  const own = (await context.cookies()).find(({name}) => name === '__Host-settings');
  assert.ok(own.secure && own.httpOnly, 'it has taken the cookie that only HTTPS has');
  await open(page, 'security.php');
  await page.check('#https-0');
  await press(page, 'Save');
  await page.waitForURL(`${base()}applying.php`, {timeout: 60000});
  await enterPassword(page);
  assert.equal(await page.innerText('h1'), 'Kept');
  await served('http');
});

test('Firefox: a trap receiver is added, tested and deleted', {user: 'admin'}, async (page) => {
  await open(page, 'traps.php');
  await page.fill('#ip', '10.20.0.1');
  await page.fill('#port', '16200');
  await press(page, 'Add');
  assert.equal(await messages(page), 'The receiver 10.20.0.1 is added.');
  await datagramsTo(16200, async (received) => {
    await press(page, 'Send a test trap');
    await until(() => received().includes('public'), 'a trap');
  });
  await page.click('main summary:has-text("10.20.0.1")');
  await press(page, 'Delete 10.20.0.1');
  assert.equal(await messages(page), 'The receiver 10.20.0.1 is deleted.');
  assert.equal(php('echo count(get_snmp_trap_regs($session));'), '0');
});
