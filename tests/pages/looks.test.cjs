// The pages for every eye and screen.
'use strict';

const assert = require('node:assert/strict');
const fs = require('node:fs');
const {applianceFolder, fromLan, ipv4Address, php, until, web, withScript,
  writeAsPages} = require('./appliance.cjs');
const {accessibilityFaults, asksToSignIn, base, enterPassword, markupFaults, messages, open, pages, press, served, showCommunity,
  signIn, test} = require('./browser.cjs');
const {fillStatic, passes, reaches} = require('./on_trial.cjs');

const screens = {wide: {width: 1280, height: 900}, narrow: {width: 390, height: 844}};

// The page as it was sent, and as it looks to everybody; afterwards it is wide and light again.
async function judge(page, name) {
  assert.deepEqual(await markupFaults(page), [], `${name} is valid`);
  const bare = await page.locator('.state').evaluateAll((all) => all.filter((state) => !state.querySelector('svg') || !state.textContent.trim()).length);
  assert.equal(bare, 0, `${name} tells a state by its colour alone`);
  await page.setViewportSize({width: 360, height: 740});
  await fits(page, name);
  for (const [colorScheme, screen] of [['dark', 'narrow'], ['light', 'narrow'], ['dark', 'wide'], ['light', 'wide']]) {
    await page.setViewportSize(screens[screen]);
    await page.emulateMedia({colorScheme});
    assert.deepEqual(await accessibilityFaults(page), [], `${name}, ${colorScheme} and ${screen}`);
    await fits(page, name);
  }
}

async function fits(page, name) {
  const [over, width] = await page.evaluate(() => [document.documentElement.scrollWidth - innerWidth, innerWidth]);
  assert.ok(over <= 0, `${name} is ${over} pixels too wide for ${width}`);
}

test('A page with faults is not passed', {user: 'admin'}, async (page) => {
  const template = `${web}/templates/dns.php`;
  fs.writeFileSync('/run/dns.with.fault', `${fs.readFileSync(template, 'utf8')}<ul><p>No item</p></ul>\n`, {mode: 0o644});
  fromLan('mount', '--bind', '/run/dns.with.fault', template);
  await open(page, 'dns.php').finally(() => fromLan('umount', template));
  const [fault, ...others] = await markupFaults(page);
  assert.match(fault, /<p> element is not permitted as content under <ul> \(<ul><p>No item/);
  assert.deepEqual(others, []);
  for (const colorScheme of ['light', 'dark']) {
    await page.emulateMedia({colorScheme});
    await page.evaluate(() => { document.querySelector('h1').style.opacity = '0.3'; });
    assert.match((await accessibilityFaults(page)).join(), /^color-contrast: [^(]*\(h1\),list: /);
  }
});

test('Every page is valid and accessible, and fits', {}, async (page, context) => {
  await page.goto(`${base()}signin.php`);
  await judge(page, 'signin.php');
  await signIn(page);
  // Also those that have no place in the menu; what goes on to another page, or is a file to keep, is none.
  let count = 0;
  for (const name of fs.readdirSync(`${web}/htdocs`).filter((file) => file.endsWith('.php'))) {
    const answer = await context.request.get(`${base()}${name}`, {maxRedirects: 0, maxRetries: 2}); // a kept connection may just end
    if (answer.status() === 303 || !answer.headers()['content-type'].startsWith('text/html')) continue;
    await open(page, name);
    for (const mark of ['#mode-static', '#enabled', '#static']) if (await page.locator(mark).count()) await page.check(mark);
    await judge(page, name);
    count += 1;
  }
  assert.ok(count > pages.length, `${count} pages`);
});

test('Errors, messages and lists are valid and accessible, and fit', {user: 'admin'}, async (page) => {
  php('create_snmp_trap_reg($session, 9, "2001:db8:20::1", "162");');
  await open(page, 'diagnostics.php?live=0');
  await judge(page, 'diagnostics.php with a refused change');
  for (const [name, button] of [['dns.php', 'Save'], ['snmp.php', 'Save'], ['traps.php', 'Add']]) {
    await open(page, name);
    if (name === 'snmp.php') await showCommunity(page);
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
  await open(page, 'dns.php');
  php('class Dns { var $dnsPrimary = "10.20.0.1"; var $dnsSecondary = ""; } set_network_dns($session, new Dns());');
  await page.fill('#dnsPrimary', '10.20.0.9');
  await press(page, 'Save');
  assert.match(await page.innerText('main'), /Somebody has changed these settings/);
  await judge(page, 'dns.php with what somebody else has set');
  php('class Dns { var $dnsPrimary = ""; var $dnsSecondary = ""; } set_network_dns($session, new Dns());');
});

test('A change on trial is valid and accessible, and fits, until it is kept and undone', {}, async (page, context) => {
  await signIn(page);
  await open(page, 'ipv6.php');
  await page.check('#enabled');
  await page.selectOption('#trial', '300');
  await press(page, 'Apply');
  await reaches('trial');
  // In another session the page does not go on to the new address: it waits to be asked.
  await page.goto('about:blank');
  await context.clearCookies();
  await signIn(page, 'admin', 'applying.php');
  await judge(page, 'applying.php on trial');
  await open(page, 'index.php');
  await judge(page, 'index.php with a change on trial');
  await page.goto(`${base()}applying.php`);
  await press(page, 'Keep');
  assert.equal(await page.innerText('h1'), 'Kept');
  await judge(page, 'applying.php when kept');
  await press(page, 'Undo now');
  await page.waitForSelector('h1:text-is("Undone")', {timeout: 60000});
  await page.reload();
  await judge(page, 'applying.php when undone');
});

test('An address in a wrong network is valid and accessible, and fits, from the warning to the end', {}, async (page) => {
  await signIn(page);
  await fillStatic(page, '10.99.0.7', '10.99.0.1');
  await press(page, 'Apply');
  await judge(page, 'the warning before it is applied');
  await press(page, 'Apply');
  assert.deepEqual(await markupFaults(page), [], 'applying.php of an address is valid');
  await until(() => ipv4Address() === '10.99.0.7', 'the wrong address');
  await reaches('trial');
  await page.waitForSelector('[data-when-lost]:visible', {timeout: 60000});
  await judge(page, 'applying.php that has lost the appliance');
  passes(50);
  await page.waitForSelector('h1:text-is("Undone")', {timeout: 60000});
  await page.reload();
  await judge(page, 'applying.php when the address of before is back');
});

test('Every page fits between a telephone and a desk, too', {user: 'admin'}, async (page) => {
  php('create_snmp_trap_reg($session, 9, "2001:db8:1234:5678:9abc:def0:1234:5678", "162");');
  for (const name of pages) {
    await open(page, name);
    for (const width of [641, 768, 959, 960, 1024]) {
      await page.setViewportSize({width, height: 900});
      const over = await page.evaluate(() => document.documentElement.scrollWidth - innerWidth);
      assert.ok(over <= 0, `${name} is ${over} pixels too wide for ${width}`);
    }
  }
});

test('States that are seldom seen are valid and accessible, and fit', {}, async (page) => {
  await page.goto(`${base()}signin.php`);
  await page.fill('#user', 'admin');
  await page.fill('#password', 'wrong');
  await press(page, 'Sign in');
  await judge(page, 'signin.php with an error');
  writeAsPages(`${applianceFolder}/HTTPService/dat/attempts`, '');

  await enterPassword(page);
  await open(page, 'dns.php');
  await page.evaluate(() => document.querySelectorAll('[name=token]').forEach((field) => { field.value = '0'; }));
  await press(page, 'Save');
  await judge(page, 'a change that is not allowed');

  await withScript('ipv6Manager.sh', 'case "$*" in "-c -s "*) exit 2 ;; *) exec sh "$ORIGINAL" "$@" ;; esac', async () => {
    await open(page, 'ipv6.php');
    await page.check('#enabled');
    await page.check('#static');
    await page.fill('#ipStatic', '2001:db8:20::7');
    await page.fill('#prefix', '64');
    await page.fill('#gateway', 'fe80::1');
    await press(page, 'Apply');
    await page.waitForSelector('h1:text-is("Refused by the appliance")', {timeout: 60000});
    await judge(page, 'applying.php when refused');
  });

  await open(page, 'security.php');
  await page.check('#https-1');
  await press(page, 'Save');
  await judge(page, 'the web server restarts');
  assert.notEqual(await page.evaluate(() => getComputedStyle(document.querySelector('.card')).borderRadius), '0px', 'it has its style');
  await served('https');
  await page.click('text=Continue with HTTPS');
  await page.waitForURL(`https://${ipv4Address()}/applying.php`, {timeout: 60000});
  await enterPassword(page);
  await judge(page, 'applying.php under HTTPS');
  await open(page, 'security.php');
  await judge(page, 'security.php under HTTPS');
  await page.check('#https-0');
  await press(page, 'Save');
  assert.deepEqual(await markupFaults(page), [], 'what says that HTTPS goes off is valid');
  await served('http');
});

test('Forms that may only be read are valid and accessible, and fit', {user: 'monitor'}, async (page) => {
  for (const name of pages) {
    await open(page, name);
    await judge(page, name);
  }
});

test('The column with the menu ends with a long page, and the menu stays in sight', {user: 'admin', viewport: {width: 1280, height: 700}},
  async (page) => {
    await open(page, 'ipv4.php');
    const seen = () => page.evaluate(() => {
      const column = document.querySelector('.side').getBoundingClientRect();
      const menu = document.querySelector('.side nav').getBoundingClientRect();
      return {end: Math.round(column.bottom + scrollY), page: document.documentElement.scrollHeight, screens: document.documentElement.scrollHeight
        / innerHeight, menuInSight: menu.top >= 0 && menu.top < innerHeight / 2};
    });
    const before = await seen();
    assert.ok(before.screens > 1.3, `the page is long: ${before.screens}`);
    assert.equal(before.end, before.page);
    await page.evaluate(() => scrollTo(0, document.documentElement.scrollHeight));
    assert.ok((await seen()).menuInSight);
  });

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
  await page.waitForSelector('#user:focus');
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
  await page.keyboard.press('Tab');
  const ring = await page.evaluate(() => {
    const {outlineStyle, outlineWidth} = getComputedStyle(document.querySelector(':focus-visible'));
    return `${outlineStyle} ${outlineWidth}`;
  });
  assert.match(ring, /^solid [2-9]px$/);
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
  await open(page, 'ipv4.php');
  await page.fill('#hostname', 'shelf');
  await press(page, 'Save name');
  assert.equal(await messages(page), 'The host name is now shelf.');
  await page.fill('#hostname', 'library');
  await press(page, 'Save name');
  await open(page, 'ipv6.php');
  await page.check('#static');
  assert.ok(await page.isVisible('#ipStatic'), 'no script is needed to show the fields');
  await page.uncheck('#static');
  for (const mode of ['IPv6 is on', 'IPv6 is off']) {
    await page.setChecked('#enabled', mode === 'IPv6 is on');
    await page.selectOption('#trial', '0');
    await press(page, 'Apply');
    assert.ok((await messages(page)).startsWith(mode), mode);
  }
  for (const dhcp of [true, false]) {
    await page.setChecked('#dhcp', dhcp);
    await page.selectOption('#trial', '0');
    await press(page, 'Apply');
    assert.match(await messages(page), /^The sources of addresses are stored/);
  }
  await page.check('#static');
  await page.fill('#ipStatic', '2001:db8:20::7');
  await page.fill('#gateway', '2001:db8:20::1');
  await press(page, 'Apply');
  await page.waitForSelector('h1:text-is("Applied")', {timeout: 60000});
  assert.match(await page.innerText('#outcome'), /^The settings are stored\. They come into force when IPv6 is switched on\./);
  await open(page, 'ipv6.php');
  await page.uncheck('#static');
  await press(page, 'Apply');
  await page.waitForSelector('h1:text-is("Applied")', {timeout: 60000});
  for (const auto of [false, true]) {
    await open(page, 'port.php');
    await page.setChecked('#auto', auto);
    await press(page, 'Save');
    assert.equal(await messages(page), 'The Ethernet port is set.');
  }
  for (const trap of [true, false]) {
    await open(page, 'snmp.php');
    await page.setChecked('#trap2', trap);
    await press(page, 'Save');
    assert.equal(await messages(page), 'The SNMP agent is set and has restarted.');
  }
  await open(page, 'traps.php');
  await page.fill('#ip', '10.20.0.9');
  await press(page, 'Add');
  await press(page, 'Send a test trap');
  assert.match(await messages(page), /^A test trap was sent/);
  await page.click('main summary');
  await press(page, 'Delete 10.20.0.9');
  assert.equal(await messages(page), 'The receiver 10.20.0.9 is deleted.');
  await open(page, 'diagnostics.php');
  await page.click('summary:has-text("Trace log")');
  await page.fill('#filter', 'entering get_fw');
  await press(page, 'Filter');
  assert.match(await page.innerText('#log'), /^(TRACE.*Entering get_fw_settings:<>\s*)+$/);
  const loaded = page.waitForEvent('load');
  await page.click('a:text-is("Follow")');
  await loaded;
  await page.waitForEvent('load', {timeout: 60000}); // by itself
  assert.match(page.url(), /live=1&background=1&filter=entering/);
  await press(page, 'Sign out');
  await asksToSignIn(page);
});
