// The pages for every eye and screen.
'use strict';

const assert = require('node:assert/strict');
const {php} = require('./appliance.cjs');
const {accessibilityFaults, asksToSignIn, base, messages, open, pages, press, signIn, test} = require('./browser.cjs');

const screens = {wide: {width: 1280, height: 900}, narrow: {width: 360, height: 740}};

async function judge(page, name) {
  assert.deepEqual(await accessibilityFaults(page), [], name);
  const over = await page.evaluate(() => document.documentElement.scrollWidth - innerWidth);
  assert.ok(over <= 0, `${name} is ${over} pixels too wide`);
}

// Contrast is a matter of the colours and fitting one of the width: two of the four combinations show both.
for (const [colorScheme, screen] of [['light', 'wide'], ['dark', 'narrow']]) {
  const viewport = screens[screen];
  test(`Every page is accessible and fits: ${colorScheme}, ${screen}`, {colorScheme, viewport}, async (page) => {
    await page.goto(`${base()}signin.php`);
    await judge(page, 'signin.php');
    await signIn(page);
    for (const name of pages) {
      await open(page, name);
      for (const mark of ['#mode-static', '#static']) if (await page.locator(mark).count()) await page.check(mark);
      await judge(page, name);
    }
  });

  test(`Errors, messages and lists are accessible and fit: ${colorScheme}, ${screen}`, {user: 'admin', colorScheme, viewport},
    async (page) => {
      for (const [name, button] of [['dns.php', 'Save'], ['snmp.php', 'Save'], ['traps.php', 'Add']]) {
        await open(page, name);
        await page.fill('main input[type=text] >> nth=0', 'x y');
        await press(page, button);
        await judge(page, `${name} with errors`);
      }
      await page.fill('#ip', '192.168.250.9');
      await press(page, 'Add');
      await judge(page, 'traps.php with a failure');
      await page.fill('#ip', '2001:db8:1234:5678:9abc:def0:1234:5678');
      await press(page, 'Add');
      await page.click('main summary');
      await judge(page, 'traps.php with a receiver');
      php('foreach (get_snmp_trap_regs($session) as $receiver) delete_snmp_trap_reg($session, $receiver->id);');
      await open(page, 'ipv4.php');
      await page.check('#mode-static');
      await press(page, 'Apply');
      await judge(page, 'applying.php');
      await page.waitForSelector('h1:text-is("Applied")', {timeout: 20000});
      await judge(page, 'applying.php when applied');
      await open(page, 'ipv4.php');
      await page.check('#mode-dhcp');
      await press(page, 'Apply');
      await page.waitForSelector('h1:text-is("Applied"), [data-when-lost]:visible', {timeout: 60000});
    });
}

test('On a narrow screen the menu opens, with and without scripts', {viewport: screens.narrow, javaScriptEnabled: false},
  async (page) => {
    await signIn(page);
    assert.ok(!await page.isVisible('nav a:has-text("DNS")'));
    await page.click('summary:has-text("Menu")');
    await page.click('nav a:has-text("DNS"):visible');
    assert.equal(await page.innerText('h1'), 'DNS');
  });

test('The keyboard alone is enough', {}, async (page) => {
  await page.goto(`${base()}dns.php`);
  await page.keyboard.type('admin');
  await page.keyboard.press('Tab');
  await page.keyboard.type(require('./appliance.cjs').accounts.get('admin'));
  await page.keyboard.press('Enter');
  await page.waitForSelector('h1:text-is("DNS")');
  await page.keyboard.press('Tab');
  assert.equal(await page.evaluate(() => document.activeElement.innerText), 'Skip to the content');
  await page.keyboard.press('Enter');
  await page.keyboard.press('Tab');
  assert.equal(await page.evaluate(() => document.activeElement.id), 'dnsPrimary');
  await page.keyboard.type('10.20.0.1');
  await page.keyboard.press('Enter');
  await page.waitForSelector('text=The DNS servers are set.');
  assert.notEqual(await page.evaluate(() => getComputedStyle(document.querySelector(':focus-visible') ?? document.body).outlineStyle), 'auto');
  php('class Off { var $dnsPrimary = ""; var $dnsSecondary = ""; } set_network_dns($session, new Off());');
});

test('Everything works without scripts', {javaScriptEnabled: false}, async (page) => {
  await signIn(page);
  await open(page, 'dns.php');
  await page.fill('#dnsPrimary', '10.20.0.1');
  await press(page, 'Save');
  assert.equal(await messages(page), 'The DNS servers are set.');
  await page.fill('#dnsPrimary', '');
  await press(page, 'Save');
  await open(page, 'traps.php');
  await page.fill('#ip', '10.20.0.9');
  await press(page, 'Add');
  await page.click('main summary');
  await press(page, 'Delete 10.20.0.9');
  assert.equal(await messages(page), 'The receiver 10.20.0.9 is deleted.');
  await open(page, 'diagnostics.php');
  await page.fill('#filter', 'entering get_fw');
  await press(page, 'Filter');
  assert.match(await page.innerText('#log'), /^(TRACE.*Entering get_fw_settings:<>\s*)+$/);
  const loaded = page.waitForEvent('load');
  await page.click('a:text-is("Follow")');
  await loaded;
  await page.waitForEvent('load', {timeout: 10000}); // by itself
  assert.match(page.url(), /live=1&background=1&filter=entering/);
  await press(page, 'Sign out');
  await asksToSignIn(page);
});
