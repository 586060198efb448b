// What the pages show is what the appliance has.
'use strict';

const assert = require('node:assert/strict');
const {ask, inAppliance, ipv4Address, php, withScript} = require('./appliance.cjs');
const {beside, errorOf, messages, open, pages, press, test} = require('./browser.cjs');

test('The overview', {user: 'admin'}, async (page) => {
  assert.equal(await page.innerText('.value >> nth=0'), ipv4Address());
  assert.equal(await beside(page, 'Host name'), inAppliance('hostname'));
  assert.equal(await beside(page, 'Gateway'), '10.20.0.1');
  assert.equal(await beside(page, 'Netmask'), '255.255.255.0');
  assert.equal(await beside(page, 'HTTPS'), 'Off');
  assert.equal(await beside(page, 'Autonegotiation'), 'On');
  assert.equal(await beside(page, 'Trap receivers'), '0');
  const states = await page.locator('.state').allInnerTexts();
  assert.deepEqual(states, ['In use', 'Link up', 'Off', 'No servers set', 'Link up', 'These pages are not encrypted', 'The agent answers']);
});

test('IPv4 and host name', {user: 'admin'}, async (page) => {
  await open(page, 'ipv4.php');
  assert.equal(await page.inputValue('#hostname'), inAppliance('hostname'));
  assert.ok(await page.isChecked('#mode-dhcp'));
  assert.ok(!await page.isVisible('#ip'), 'static fields are hidden while DHCP is chosen');
  assert.equal(await page.inputValue('#ip'), ipv4Address());
  assert.equal(await page.inputValue('#netmask'), '255.255.255.0');
  assert.equal(await page.inputValue('#gateway'), '10.20.0.1');
});

test('The Ethernet port', {user: 'admin'}, async (page) => {
  await open(page, 'port.php');
  assert.equal(ask('ipv4Manager.sh', '-g', 'port'), 'on?100?full');
  assert.ok(await page.isChecked('#auto'));
  assert.ok(await page.isChecked('#speed-100'));
  assert.ok(await page.isChecked('#duplex-1'));
});

test('The SNMP agent', {user: 'admin'}, async (page) => {
  await open(page, 'snmp.php');
  const settings = JSON.parse(php('echo json_encode(get_snmp_settings($session));'));
  assert.equal(await page.isChecked('#version1'), settings.version1);
  assert.equal(await page.isChecked('#trap1'), settings.trap1);
  assert.equal(await page.isChecked('#trap2'), settings.trap2);
  assert.equal(await page.isChecked('#auth_traps_enabled'), settings.auth_traps_enabled);
  assert.equal(await page.inputValue('#community_name'), settings.community_name);
  assert.match(await page.innerText('.fixed'), /Version 3\s+Always on\. Authentication MD5, encryption off, port 161\./);
});

test('With no device script working every page still says what is wrong, with message and code', {user: 'admin'}, async (page) => {
  await withScript('ipv4Manager.sh', 'exit 1', () => withScript('ipv6Manager.sh', 'exit 1', async () => {
    for (const name of pages) {
      await open(page, name);
      assert.doesNotMatch(await page.content(), /This page has a fault|Warning:|htdocs/, name);
      const wrong = await page.locator('#messages .message.bad').allInnerTexts();
      assert.ok(wrong.length <= 1, `${name}: one cause is one message`);
      if (wrong.length > 0) assert.match(await messages(page), /Code 0x[0-9A-F]{8}, reported at /, name);
      if (['index.php', 'ipv4.php', 'ipv6.php', 'dns.php', 'port.php'].includes(name)) assert.ok(wrong.length > 0, name);
    }
    await open(page, 'ipv4.php');
    await page.fill('#ip', '10.20.0.7').catch(() => {});
    await page.check('#mode-dhcp');
    await press(page, 'Apply');
    assert.match(await errorOf(page, 'mode'), /^The host name cannot be read/);
  }));
});

test('A setting that cannot be read is reported with message and code, never as the interpreter prints it', {user: 'admin'},
  async (page) => {
    await withScript('ipv4Manager.sh', 'case "$*" in "-g host") exec sh "$ORIGINAL" "$@" ;; *) exit 1 ;; esac', async () => {
      await open(page, 'ipv4.php');
      const said = await messages(page);
      assert.match(said, /^Could not get IPv4 network information\n/);
      assert.match(await messages(page), /Code 0x00000001, reported at http\/src\/network:\d+/);
      assert.doesNotMatch(await page.content(), /Warning|<b>|htdocs/);
      assert.equal(await page.inputValue('#ip'), '');
      assert.match(await page.title(), /^Error: /);
    });
    await open(page, 'ipv4.php');
    assert.equal(await messages(page), '');
  });
