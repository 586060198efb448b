// The form for IPv6: one change, whatever of it differs, and parts that are inactive while IPv6 is off.
'use strict';

const assert = require('node:assert/strict');
const {addresses, ask, inAppliance, ipv4Address, php, until, web, withScript} = require('./appliance.cjs');
const {accessibilityFaults, base, errorOf, messages, open, press, signIn, test} = require('./browser.cjs');
const {audit, Client, passes, reaches, trial} = require('./on_trial.cjs');

const stored = '2001:db8:20::7/64?2001:db8:20::1';
const wanted = {change: 'ipv6', enabled: '1', stateless: '', dhcp: '1', static: '1', ipStatic: '2001:db8:20::8', prefix: '64',
  gateway: '2001:db8:20::1', trial: '60', reviewed: 'yes'};

// Everything of IPv6 that is set.
function settings() {
  return [php('echo is_ipv6_enabled() ? "on" : "off";'), ask('ipv6Manager.sh', '-l'),
    php('echo is_ipv6_dhcp_enabled() ? "on" : "off";'), ask('ipv6Manager.sh', '-g', 'static').replaceAll(':0:0:0:0:', '::')];
}

// A field of the record that is no text.
function recorded(field) {
  return JSON.parse(inAppliance('php', '-r', `require "${web}/shared/page.php"; $trial = read_trial(); echo json_encode($trial["${field}"]);`));
}

async function fillStatic(page, ip = '2001:db8:20::8') {
  await page.check('#static');
  await page.fill('#ipStatic', ip);
  await page.fill('#prefix', '64');
  await page.fill('#gateway', '2001:db8:20::1');
}

async function admin(host = ipv4Address()) {
  const client = new Client();
  await client.signIn(host);
  return client;
}

async function post(client, page, fields, host = ipv4Address()) {
  const token = await client.hidden(`http://${host}/${page}`, 'token');
  return client.ask(`http://${host}/${page}`, {token, ...fields});
}

async function asAtFirst() {
  ask('ipv6Manager.sh', '-r');
  php('set_ipv6_enabled($session, false); set_stateless_enabled($session, true); set_ipv6_dhcp_enabled($session, false);');
  await until(() => addresses('inet6').length === 0, 'the addresses to go');
}

const activeWays = (page) => page.evaluate(() => ['stateless', 'dhcp', 'static', 'ipStatic']
  .filter((id) => !document.getElementById(id).matches(':disabled')));

test('The ways to an address are inactive while IPv6 is off, and then nothing of them is sent', {}, async (page) => {
  ask('ipv6Manager.sh', '-c', '-s', stored);
  php('set_ipv6_enabled($session, true);');
  await signIn(page, 'admin', 'ipv6.php');
  assert.deepEqual(await activeWays(page), ['stateless', 'dhcp', 'static', 'ipStatic']);
  assert.ok(!await page.isVisible('text=Not in force while IPv6 is off'));
  // What is wrong in it does no harm then.
  await page.fill('#ipStatic', 'wrong');
  await page.uncheck('#stateless');
  await page.uncheck('#enabled');
  assert.deepEqual(await activeWays(page), []);
  assert.ok(await page.isVisible('text=Not in force while IPv6 is off'));
  assert.deepEqual(await accessibilityFaults(page), []);
  await page.selectOption('#trial', '0');
  await press(page, 'Apply');
  assert.equal(await messages(page), 'IPv6 is off.');
  assert.deepEqual(settings(), ['off', '1', 'off', stored]);
  assert.deepEqual(await activeWays(page), []);
  assert.equal(await page.inputValue('#ipStatic'), '2001:db8:20::7');
  await asAtFirst();
});

test('By the keyboard: inactive ways are passed over, and active as soon as IPv6 is chosen', {}, async (page) => {
  await signIn(page, 'admin', 'ipv6.php');
  const goesThrough = async (...ids) => {
    for (const id of ids) {
      await page.keyboard.press('Tab');
      assert.equal(await page.evaluate(() => document.activeElement.id), id);
    }
  };
  await page.focus('#enabled');
  await goesThrough('trial');
  await page.keyboard.press('Shift+Tab');
  await page.keyboard.press('Space');
  await goesThrough('stateless', 'dhcp', 'static', 'trial');
  await page.keyboard.press('Shift+Tab');
  await page.keyboard.press('Space');
  await goesThrough('ipStatic', 'prefix', 'gateway', 'trial');
});

test('The role monitor sees the settings and no form, whether IPv6 is on or off', {}, async (page) => {
  await signIn(page, 'monitor', 'ipv6.php');
  for (const enabled of [true, false]) {
    php(`set_ipv6_enabled($session, ${enabled});`);
    await open(page, 'ipv6.php');
    assert.match(await page.innerText('main'), enabled ? /IPv6\s+On/ : /IPv6\s+Off/);
    for (const control of ['form', 'input', 'button']) assert.equal(await page.locator(`#content ${control}`).count(), 0, control);
  }
});

test('IPv6 on, router advertisements off and a static address: one Apply, one trial of what differs, one undoing of all', {}, async (page) => {
  await signIn(page, 'admin', 'ipv6.php');
  const before = audit().length;
  await page.check('#enabled');
  await page.uncheck('#stateless');
  await fillStatic(page);
  await press(page, 'Apply');
  assert.deepEqual(recorded('values'), {enabled: 'On', stateless: 'Off', mode: 'On', ip: '2001:db8:20::8', prefix: '64', gateway: '2001:db8:20::1'});
  await page.waitForSelector('h1:text-is("Kept")', {timeout: 60000});
  assert.deepEqual(settings(), ['on', '0', 'off', '2001:db8:20::8/64?2001:db8:20::1']);
  assert.deepEqual(addresses('inet6'), ['2001:db8:20::8/64']);
  assert.deepEqual(audit().slice(before).map(([,, what]) => what), ['IPv6 settings begun', 'IPv6 settings kept']);
  await press(page, 'Undo now');
  await page.waitForSelector('h1:text-is("Undone")', {timeout: 60000});
  assert.deepEqual(settings(), ['off', '1', 'off', '']);
});

test('Nobody is back: all parts are as before, the stored address too', {}, async () => {
  ask('ipv6Manager.sh', '-c', '-s', stored);
  const client = await admin();
  await post(client, 'ipv6.php', wanted);
  await reaches('trial');
  assert.deepEqual(settings(), ['on', '0', 'on', '2001:db8:20::8/64?2001:db8:20::1']);
  passes(59);
  await reaches('undone');
  assert.equal(trial('why'), 'time');
  assert.deepEqual(settings(), ['off', '1', 'off', stored]);
  await asAtFirst();
});

test('The appliance refuses the address: IPv6 is not left on either, and the page says why', {}, async (page) => {
  await signIn(page, 'admin', 'ipv6.php');
  await withScript('ipv6Manager.sh', 'case "$*" in "-c -s "*) exit 2 ;; *) exec sh "$ORIGINAL" "$@" ;; esac', async () => {
    await page.check('#enabled');
    await page.uncheck('#stateless');
    await fillStatic(page);
    await press(page, 'Apply');
    await page.waitForSelector('h1:text-is("Refused by the appliance")', {timeout: 60000});
  });
  assert.match(await page.innerText('pre'), /Failed to enable static IPv6 address: :<\d+>/);
  assert.equal(trial('state'), 'refused');
  assert.deepEqual(settings(), ['off', '1', 'off', '']);
  assert.equal(audit().at(-1)[2], 'IPv6 settings refused by the appliance');
  await page.click('text=Back, to try again');
  await page.waitForSelector('#ipStatic');
  assert.ok(await page.isChecked('#enabled') && !await page.isChecked('#stateless'), 'nothing chosen is lost');
  assert.equal(await page.inputValue('#ipStatic'), '2001:db8:20::8');
});

test('A way that cannot be switched: no address is set, and nothing else stays, also of what the watcher does', {}, async () => {
  await withScript('ipv6Manager.sh', 'case "$*" in "-c -d on") exit 1 ;; *) exec sh "$ORIGINAL" "$@" ;; esac', async () => {
    await post(await admin(), 'ipv6.php', wanted);
    assert.equal(trial('state'), 'refused');
    assert.deepEqual(settings(), ['off', '1', 'off', '']);

    php('set_ipv6_enabled($session, true);');
    const [address] = await until(() => addresses('inet6').length > 0 && addresses('inet6'), 'an address');
    const host = `[${address.split('/')[0]}]`;
    await post(await admin(host), 'ipv6.php', wanted, host);
    assert.equal(trial('state'), 'applying', 'the answer goes out first');
    await reaches('refused');
    assert.deepEqual(settings(), ['on', '1', 'off', '']);
  });
  await asAtFirst();
});

test('Undone while the address is still being set: it does not come after all', {}, async () => {
  const client = await admin();
  await withScript('ipv6Manager.sh', 'case "$*" in "-c -s "*) sleep 6 ;; esac; exec sh "$ORIGINAL" "$@"', async () => {
    await post(client, 'ipv6.php', wanted);
    assert.equal(trial('state'), 'applying');
    await post(client, 'applying.php', {id: trial('id'), seen: 'applying', change: 'undo'});
    await reaches('undone');
  });
  assert.deepEqual(settings(), ['off', '1', 'off', '']);
});

test('Without scripts the ways can be used while IPv6 is off: they are stored, and in force once it is on', {javaScriptEnabled: false}, async (page) => {
  await signIn(page, 'admin', 'ipv6.php');
  assert.ok(await page.isVisible('text=Not in force while IPv6 is off'));
  await page.uncheck('#stateless');
  await fillStatic(page);
  await press(page, 'Apply');
  await page.waitForSelector('h1:text-is("Applied")', {timeout: 60000});
  assert.match(await page.innerText('#outcome'), /They come into force when IPv6 is switched on/);
  assert.equal(trial('why'), 'no trial', 'what is only stored locks nobody out');
  assert.deepEqual(settings(), ['off', '0', 'off', '2001:db8:20::8/64?2001:db8:20::1']);
  assert.deepEqual(addresses('inet6'), []);
  await open(page, 'ipv6.php');
  await page.check('#enabled');
  await page.selectOption('#trial', '0');
  await press(page, 'Apply');
  assert.match(await messages(page), /^IPv6 is on/);
  await until(() => addresses('inet6').includes('2001:db8:20::8/64'), 'the static address');
  await asAtFirst();
});

test('While what is set cannot be read, nothing is changed: it could not be put back', {}, async (page) => {
  await signIn(page, 'admin', 'ipv6.php');
  await withScript('ipv6Manager.sh', 'case "$*" in -l) exit 1 ;; *) exec sh "$ORIGINAL" "$@" ;; esac', async () => {
    await open(page, 'ipv6.php');
    await page.check('#enabled');
    await press(page, 'Apply');
    assert.match(await errorOf(page, 'enabled'), /^What is set now cannot be read/);
    assert.ok(await page.isChecked('#enabled'), 'nothing chosen is lost');
  });
  assert.deepEqual(settings(), ['off', '1', 'off', '']);
});

test('Another change on trial is said at the form', {}, async (page) => {
  await signIn(page, 'admin', 'ipv6.php');
  const client = await admin();
  await post(client, 'ipv6.php', {...wanted, static: ''});
  await reaches('trial');
  const other = settings();
  await open(page, 'ipv6.php');
  await page.uncheck('#enabled');
  await press(page, 'Apply');
  assert.match(await errorOf(page, 'enabled'), /^Another change is on trial/);
  assert.deepEqual(settings(), other);
  passes(59);
  await reaches('undone');
  await asAtFirst();
});

test('The record of a program that told the switch, the modes and the address apart is undone and shown', {}, async (page) => {
  await signIn(page, 'admin', 'ipv6.php');
  for (const [kind, values] of [['ipv6-switch', '"enabled" => "On"'], ['ipv6-modes', '"stateless" => "Off", "dhcp" => "On"']]) {
    inAppliance('php', '-r', `require "${web}/shared/page.php"; $session = new Session(); $session->user = "admin"; $session->role = "admin";
      $before = settings_of($session, "ipv6"); $record = new_trial($session, "${kind}", array(${values}), $before, "", "", 60);
      $record["state"] = "trial"; $record["ended"] = time(); store_trial($record);
      set_ipv6_enabled($session, true); set_stateless_enabled($session, false); set_ipv6_dhcp_enabled($session, true);`);
    assert.equal(trial('kind'), kind);
    await page.goto(`${base()}applying.php`);
    assert.equal(await page.innerText('h1'), 'On trial', kind);
    await press(page, 'Undo now');
    await page.waitForSelector('h1:text-is("Undone")', {timeout: 60000}); // until then the page goes on by itself
    assert.deepEqual(settings(), ['off', '1', 'off', ''], kind);
  }
});
