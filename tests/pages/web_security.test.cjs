// The pages with and without encryption.
'use strict';

const assert = require('node:assert/strict');
const fs = require('node:fs');
const net = require('node:net');
const {applianceFolder, ipv4Address, php, until, withScript, writeAsPages} = require('./appliance.cjs');
const {base, beside, certificate, enterPassword, messages, open, press, served, sessionCookie, signIn, test} = require('./browser.cjs');

// Of somebody who was signed in when HTTPS was switched on; whoever listened in knows it.
let unencrypted;

// Who switches is signed out: a session of its own each.
test('HTTPS is switched on: the page comes back encrypted, with a cookie of its own', {}, async (page, context) => {
  const bystander = await context.browser().newContext();
  await signIn(await bystander.newPage(), 'monitor');
  unencrypted = (await sessionCookie(bystander)).value;
  await bystander.close();
  await signIn(page, 'admin', 'security.php');
  assert.ok(await page.isChecked('#https-0'));
  assert.match(await page.innerText('.note'), /restarts in the new mode, and you will sign in again/);
  await page.check('#https-1');
  await press(page, 'Save');
  assert.match(await page.innerText('main'), /The web server restarts with HTTPS on/);
  const shown = await beside(page, 'SHA-256 fingerprint');
  const {subject, subjectaltname, fingerprint256} = await served('https');
  assert.equal(shown, fingerprint256, 'what is to be compared is shown before the page goes on');
  assert.match(await beside(page, 'For'), new RegExp(`library.*${ipv4Address().replaceAll('.', '\\.')}`));
  // Not the address that sends on to it: the browser may have a connection to the web server of before, which does not.
  assert.match(await page.getAttribute('text=Continue with HTTPS', 'href'), /^https:/);
  await page.click('text=Continue with HTTPS');
  await page.waitForURL(`https://${ipv4Address()}/applying.php`, {timeout: 60000});
  assert.equal(subject.CN, 'library');
  assert.ok(subjectaltname.includes(`IP Address:${ipv4Address()}`), subjectaltname);
  await enterPassword(page);
  assert.equal(await page.innerText('h1'), 'Kept');
  await open(page, 'security.php');
  assert.ok(await page.isChecked('#https-1'));
  assert.match(await page.innerText('main'), /These pages are encrypted/);
  const cookies = await context.cookies(`https://${ipv4Address()}/`);
  const own = cookies.find(({name}) => name === '__Host-settings');
  assert.ok(own.secure && own.httpOnly && own.sameSite === 'Lax');
  const before = cookies.find(({name}) => name === 'settings');
  assert.ok(!before || before.value !== own.value, 'what has travelled unencrypted is not used again');
});

test('A session that has travelled unencrypted is of no use under HTTPS, whatever the cookie is called', {}, async (page, context) => {
  await served('https');
  await signIn(page, 'admin', 'index.php', 'https');
  const {name, value} = await sessionCookie(context);
  const asks = async (address, cookie) => {
    const answer = await context.request.get(address, {headers: {cookie}});
    return /action="signin\.php"/.test(await answer.text());
  };
  assert.equal(await asks(`${base('https')}dns.php`, `${name}=${value}`), false);
  // As if it had been made before HTTPS was switched on.
  const file = `${applianceFolder}/HTTPService/dat/sessions/sess_${value}`;
  writeAsPages(file, fs.readFileSync(file, 'utf8').replace('https|b:1;', 'https|b:0;'));
  assert.equal(await asks(`${base('https')}dns.php`, `${name}=${value}`), true);
});

test('A host name that changes gets a certificate of its own', {}, async (page) => {
  await served('https');
  await signIn(page, 'admin', 'ipv4.php', 'https');
  await page.fill('#hostname', 'archive');
  await press(page, 'Save name');
  assert.equal(await messages(page), 'The host name is now archive.');
  await until(async () => (await served('https')).subject.CN === 'archive', 'the certificate for archive');
  php('set_network_hostname($session, "library");');
  await until(async () => (await served('https')).subject.CN === 'library', 'the certificate for library');
});

test('HTTPS is switched off: the page comes back without it', {}, async (page) => {
  await served('https');
  await signIn(page, 'admin', 'security.php', 'https');
  await page.check('#https-0');
  await press(page, 'Save');
  await page.waitForURL(`http://${ipv4Address()}/applying.php`, {timeout: 60000});
  await enterPassword(page);
  assert.equal(await page.innerText('h1'), 'Kept');
  // What travelled unencrypted before HTTPS was on is not good again.
  const answer = await fetch(`${base()}dns.php`, {headers: {cookie: `settings=${unencrypted}`}});
  assert.match(await answer.text(), /action="signin\.php"/);
  await open(page, 'security.php');
  assert.ok(await page.isChecked('#https-0'));
  await press(page, 'Save');
  assert.match(await messages(page), /HTTPS is off already; nothing was changed\./);
});

test('A web server that does not change its mode is reported with the code, and the mode stays', {user: 'admin'}, async (page) => {
  await served('http');
  await withScript('applyWebMode.sh', 'exit 1', async () => {
    await open(page, 'security.php');
    await page.check('#https-1');
    await press(page, 'Save');
    assert.match(await messages(page), /^Could not set SSL settings\n+The web server stays in its old mode\.\n[^]*Code 0x/);
  });
  assert.match(await page.innerText('main'), /These pages are not encrypted/);
  assert.equal(php('var_dump(get_ssl_settings($session)->isEnabled);'), 'bool(false)');
});

test('A connection on which nothing is asked does not hold up the change', {}, async () => {
  await served('http');
  const idle = net.connect({host: ipv4Address(), port: 80});
  await new Promise((resolve) => idle.once('connect', resolve));
  php('set_ssl_settings($session, true);');
  await served('https');
  php('set_ssl_settings($session, false);');
  await served('http');
  idle.destroy();
});

test('Without scripts the pages come back in the other mode as well', {javaScriptEnabled: false}, async (page) => {
  await served('http');
  await signIn(page, 'admin', 'security.php');
  for (const [mode, scheme] of [['1', 'https'], ['0', 'http']]) {
    await page.check(`#https-${mode}`);
    await press(page, 'Save');
    if (scheme === 'https') {
      await served('https');
      await page.click('text=Continue with HTTPS');
    }
    await page.waitForURL(`${scheme}://${ipv4Address()}/applying.php`, {timeout: 60000});
    await enterPassword(page);
    assert.equal(await page.innerText('h1'), 'Kept');
    await open(page, 'security.php');
    assert.ok(await page.isChecked(`#https-${mode}`));
  }
});

test('A mode that is none is refused', {user: 'admin'}, async (page) => {
  await served('http');
  await open(page, 'security.php');
  await page.evaluate(() => { document.getElementById('https-0').value = '2'; });
  await press(page, 'Save');
  assert.match(await page.innerText('main'), /Choose how these pages are served/);
  assert.equal(php('var_dump(get_ssl_settings($session)->isEnabled);'), 'bool(false)');
});
