// What is changed on a page is changed on the appliance, and what is wrong is said beside its field.
'use strict';

const assert = require('node:assert/strict');
const fs = require('node:fs');
const {addresses, ask, datagramsTo, fromLan, inAppliance, ipv4Address, php, traceLog, until, web, withScript} = require('./appliance.cjs');
const {accessibilityFaults, beside, errorOf, messages, open, press, showCommunity, signIn, test} = require('./browser.cjs');

// The pages as on a device that has no list of the networks within it: there the appliance alone knows what it refuses.
async function withoutList(work) {
  const rules = `${web}/shared/addresses.php`;
  const others = '/run/addresses.without.list';
  fs.writeFileSync(others, fs.readFileSync(rules, 'utf8').replace('/etc/internal_networks\'', '/etc/none\''), {mode: 0o644});
  fromLan('mount', '--bind', others, rules);
  try {
    await work();
  } finally {
    fromLan('umount', rules);
  }
}

// Fills in a form, sends it, and sees each field keep what was typed, with the sentence beside it.
async function refused(page, button, within, cases) {
  for (const [values, errors] of cases) {
    for (const [field, value] of Object.entries(values)) await page.fill(`#${field}`, value);
    await press(page, button, within);
    for (const [field, value] of Object.entries(values)) {
      assert.equal(await page.inputValue(`#${field}`), value.trim(), `${field} keeps what was typed`);
      if (!errors[field]) assert.equal(await errorOf(page, field), '', `${field}: ${value}`);
    }
    for (const [field, error] of Object.entries(errors)) assert.match(await errorOf(page, field), error, values[field]);
    assert.match(await messages(page), /Nothing was changed/);
    const focused = await page.evaluate(() => document.activeElement.closest('[aria-invalid=true]') !== null);
    assert.ok(focused, 'the first wrong field has the focus');
  }
}

test('The host name', {user: 'admin'}, async (page) => {
  await open(page, 'ipv4.php');
  await page.fill('#hostname', 'archive-3.example');
  await press(page, 'Save name');
  assert.equal(await messages(page), 'The host name is now archive-3.example.');
  assert.equal(inAppliance('hostname'), 'archive-3.example');
  assert.match(await page.title(), /archive-3\.example$/);
  const asked = traceLog().length;
  await press(page, 'Save name');
  assert.match(await messages(page), /already; nothing was changed/);
  assert.doesNotMatch(traceLog().slice(asked), /set_network_hostname/, 'the appliance was not asked');
  await page.fill('#hostname', 'library');
  await press(page, 'Save name');
  assert.equal(inAppliance('hostname'), 'library');
});

test('A host name that is none', {user: 'admin'}, async (page) => {
  await open(page, 'ipv4.php');
  await refused(page, 'Save name', 'main', [
    [{hostname: ''}, {hostname: /Enter a name/}],
    [{hostname: 'a b'}, {hostname: /Use only letters/}],
    [{hostname: 'naïve'}, {hostname: /Use only letters/}],
    [{hostname: '$(reboot)'}, {hostname: /Use only letters/}],
    [{hostname: '"; reboot; "'}, {hostname: /Use only letters/}],
    [{hostname: '-a'}, {hostname: /hyphen/}],
    [{hostname: 'a..b'}, {hostname: /Each part/}],
    [{hostname: `${'a'.repeat(63)}.b`}, {hostname: /too long/}],
    [{hostname: 'a'.repeat(64)}, {hostname: /1 to 63/}],
  ]);
  assert.equal(inAppliance('hostname'), 'library');
});

test('A host name that the appliance refuses is reported with the code', {user: 'admin'}, async (page) => {
  await withScript('ipv4Manager.sh', 'case $1 in -n) exit 2 ;; *) exec sh "$ORIGINAL" "$@" ;; esac', async () => {
    await open(page, 'ipv4.php');
    await page.fill('#hostname', 'other');
    await press(page, 'Save name');
    assert.match(await messages(page), /^Nothing was changed\. Correct what is marked and save again\.\n+Details\n+Could not set library hostname\. Code 0x00000001, reported at \S+:\d+$/);
    assert.match(await errorOf(page, 'hostname'), /did not take this name/);
    assert.equal(await page.inputValue('#hostname'), 'other');
    assert.ok(await page.isChecked('#mode-dhcp'), 'the other form shows what is');
  });
  assert.equal(inAppliance('hostname'), 'library');
});

test('IPv4 settings that cannot be', {user: 'admin'}, async (page) => {
  const logged = traceLog().length;
  await open(page, 'ipv4.php');
  await page.check('#mode-static');
  const good = {ip: '10.20.0.7', netmask: '255.255.255.0', gateway: '10.20.0.1'};
  await refused(page, 'Apply', 'main', [
    [{ip: '', netmask: '', gateway: ''}, {ip: /four numbers/, netmask: /netmask/, gateway: /router/}],
    [{...good, ip: '10.20.0.256'}, {ip: /four numbers/}],
    [{...good, ip: '10.20.0.07'}, {ip: /four numbers/}],
    [{...good, ip: '10.20.0.7; reboot'}, {ip: /four numbers/}],
    [{...good, ip: '127.0.0.1'}, {ip: /cannot have/}],
    [{...good, ip: '0.0.0.0'}, {ip: /cannot have/}],
    [{...good, ip: '10.20.0.255'}, {ip: /first and the last/}],
    [{...good, ip: '10.20.0.0'}, {ip: /first and the last/}],
    [{...good, netmask: '255.0.255.0'}, {netmask: /such as 255\.255\.255\.0/}],
    [{...good, netmask: '255.255.255.255'}, {netmask: /such as/}],
    [{...good, gateway: '10.20.1.1'}, {gateway: /same network as 10\.20\.0\.7 with netmask 255\.255\.255\.0/}],
    [{...good, gateway: '10.20.0.7'}, {gateway: /itself/}],
    [{...good, gateway: '10.20.0.255'}, {gateway: /belong/}],
  ]);
  assert.doesNotMatch(traceLog().slice(logged), /Entering set_/);
});

test('The DNS servers', {user: 'admin'}, async (page) => {
  await open(page, 'dns.php');
  await page.fill('#dnsPrimary', ' 10.20.0.1 ');
  await page.fill('#dnsSecondary', '2001:db8:20::1');
  await press(page, 'Save');
  assert.equal(await messages(page), 'The DNS servers are set.');
  assert.equal(await page.inputValue('#dnsPrimary'), '10.20.0.1');
  assert.equal(await page.inputValue('#dnsSecondary'), '2001:db8:20::1');
  const servers = fs.readFileSync('/etc/resolv.conf', 'utf8').match(/^nameserver .*$/gm);
  assert.deepEqual(servers, ['nameserver 10.20.0.1', 'nameserver 2001:db8:20::1']);
  await page.fill('#dnsPrimary', '');
  await page.fill('#dnsSecondary', '');
  await press(page, 'Save');
  assert.equal(await messages(page), 'The DNS servers are removed.');
  assert.equal(ask('ipv6Manager.sh', '-g', 'dns'), 'disabled');
});

test('DNS servers that cannot be', {user: 'admin'}, async (page) => {
  await open(page, 'dns.php');
  await refused(page, 'Save', 'main', [
    [{dnsPrimary: 'dns.example', dnsSecondary: ''}, {dnsPrimary: /IPv4 or IPv6 address/}],
    [{dnsPrimary: '10.20.0.1', dnsSecondary: '1::2::3'}, {dnsSecondary: /IPv4 or IPv6 address/}],
    [{dnsPrimary: '', dnsSecondary: '10.20.0.1'}, {dnsPrimary: /only server here/}],
    [{dnsPrimary: '10.20.0.1" x', dnsSecondary: ''}, {dnsPrimary: /IPv4 or IPv6 address/}],
    [{dnsPrimary: '10.20.0.1', dnsSecondary: '10.20.0.1'}, {dnsSecondary: /^This is the primary server\./}],
    [{dnsPrimary: '2001:db8:20::1', dnsSecondary: '2001:DB8:20:0::1'}, {dnsSecondary: /^This is the primary server\./}],
    [{dnsPrimary: '127.0.0.1', dnsSecondary: '::1'}, {dnsPrimary: /No other device/, dnsSecondary: /No other device/}],
  ]);
  await refused(page, 'Save', 'main', [
    [{dnsPrimary: '192.168.250.5', dnsSecondary: ''}, {dnsPrimary: /^The network 192\.168\.250\.0\/24 is used inside the appliance/}],
    [{dnsPrimary: '10.20.0.1', dnsSecondary: 'fd00:250::5'}, {dnsSecondary: /^The network fd00:250::\/64 is used inside the appliance/}],
  ]);
  await withoutList(async () => {
    await page.fill('#dnsPrimary', '192.168.250.5');
    await page.fill('#dnsSecondary', '');
    await press(page, 'Save');
    assert.match(await messages(page), /^Nothing was changed\. Correct what is marked and save again\.\n+Details\n+Failed to set DNS addresses\. Code 0x00050040, reported at \S+:\d+$/);
    assert.equal(await page.inputValue('#dnsPrimary'), '192.168.250.5');
    assert.equal(await errorOf(page, 'dnsPrimary'), 'This address is used inside the appliance. Enter a server of your own network.');
    await page.fill('#dnsPrimary', '10.20.0.1');
    await page.fill('#dnsSecondary', '192.168.250.5');
    await press(page, 'Save');
    for (const field of ['dnsPrimary', 'dnsSecondary']) assert.match(await errorOf(page, field), /^This address or the other one/);
  });
  assert.equal(ask('ipv6Manager.sh', '-g', 'dns'), 'disabled');
});

test('The Ethernet port', {user: 'admin'}, async (page) => {
  await open(page, 'port.php');
  await page.uncheck('#auto');
  await page.check('#speed-10');
  await page.check('#duplex-0');
  await press(page, 'Save');
  assert.equal(await messages(page), 'The Ethernet port is set.');
  assert.equal(ask('ipv4Manager.sh', '-g', 'port'), 'off?10?half');
  assert.ok(!await page.isChecked('#auto'));
  assert.ok(await page.isChecked('#speed-10'));
  assert.ok(await page.isChecked('#duplex-0'));
  await page.check('#auto');
  await press(page, 'Save');
  assert.equal(ask('ipv4Manager.sh', '-g', 'port'), 'on?100?full');
  await page.uncheck('#auto');
  await page.evaluate(() => document.querySelectorAll('[type=radio]').forEach((mark) => { mark.value = '1000'; }));
  await press(page, 'Save');
  assert.equal(await errorOf(page, 'speed'), 'Choose a speed.');
  assert.equal(await errorOf(page, 'duplex'), 'Choose a duplex mode.');
  assert.equal(ask('ipv4Manager.sh', '-g', 'port'), 'on?100?full');
});

// In each case the device script that answers the page fails, and the one that sets does its work.
test('What could not be read before a change is no failure of the change', {user: 'admin'}, async (page) => {
  await withScript('ipv6Manager.sh', 'case "$*" in "-g dns") exit 1 ;; *) exec sh "$ORIGINAL" "$@" ;; esac', async () => {
    await open(page, 'dns.php');
    assert.match(await messages(page), /Code 0x/);
    await page.fill('#dnsPrimary', '10.20.0.1');
    await press(page, 'Save');
    assert.match(await messages(page), /^The DNS servers are set\./);
  });
  assert.equal(ask('ipv6Manager.sh', '-g', 'dns'), '10.20.0.1');
  php('class Off { var $dnsPrimary = ""; var $dnsSecondary = ""; } set_network_dns($session, new Off());');
  await withScript('ipv4Manager.sh', 'case "$*" in "-g port") exit 1 ;; *) exec sh "$ORIGINAL" "$@" ;; esac', async () => {
    await open(page, 'port.php');
    assert.match(await messages(page), /Code 0x/);
    await page.check('#auto');
    await press(page, 'Save');
    assert.match(await messages(page), /^The Ethernet port is set\./);
  });
  assert.equal(ask('ipv4Manager.sh', '-g', 'port'), 'on?100?full');
});

test('Ethernet port settings that the appliance refuses are reported with the code', {user: 'admin'}, async (page) => {
  await withScript('ipv4Manager.sh', 'case "$*" in "-g "*) exec sh "$ORIGINAL" "$@" ;; *) exit 1 ;; esac', async () => {
    await open(page, 'port.php');
    await page.uncheck('#auto');
    await page.check('#speed-10');
    await press(page, 'Save');
    assert.match(await messages(page), /^Failed to set port settings\.\n+The port keeps its old settings\.\n[^]*Code 0x/);
    assert.ok(await page.isChecked('#speed-10'), 'what was chosen stays');
  });
  assert.equal(ask('ipv4Manager.sh', '-g', 'port'), 'on?100?full');
});

function snmpGet(version, community) {
  try {
    return fromLan('snmpget', '-v', version, '-c', community, '-t', '1', '-r', '0', '-Oqv', ipv4Address(), '.1.3.6.1.2.1.1.5.0');
  } catch {
    return '';
  }
}

test('The SNMP agent', {user: 'admin'}, async (page) => {
  await open(page, 'snmp.php');
  await page.check('#version1');
  await showCommunity(page);
  await page.fill('#community_name', 'read$me;<b>');
  await page.check('#trap2');
  await press(page, 'Save');
  assert.equal(await messages(page), 'The SNMP agent is set and has restarted.');
  assert.equal(await page.inputValue('#community_name'), 'read$me;<b>');
  assert.ok(await page.isChecked('#trap2'));
  assert.match(snmpGet('2c', 'read$me;<b>'), /library/);
  assert.match(snmpGet('1', 'read$me;<b>'), /library/);
  assert.equal(snmpGet('2c', 'public'), '');
  await page.uncheck('#version1');
  await press(page, 'Save');
  assert.equal(snmpGet('2c', 'read$me;<b>'), '');
  await page.check('#version1');
  await page.uncheck('#trap2');
  await showCommunity(page);
  await page.fill('#community_name', 'public');
  await press(page, 'Save');
  assert.match(snmpGet('2c', 'public'), /library/);
  assert.ok(!await page.isChecked('#trap2'));
});

// The datagrams of SNMP in a stream of them: of each its version, and whether it tells of a wrong community.
function trapsIn(stream) {
  const traps = [];
  for (let at = 0; at < stream.length;) {
    const long = stream[at + 1] > 0x80 ? stream[at + 1] - 0x80 : 0;
    const length = long ? stream.readUIntBE(at + 2, long) : stream[at + 1];
    const content = stream.subarray(at + 2 + long, at + 2 + long + length);
    at += 2 + long + length;
    const version = content[2] === 0 ? '1' : '2c';
    const wrongCommunity = version === '1' ? content.includes(Buffer.from([0x40, 4, 10, 20, 0, ipv4Address().split('.')[3], 2, 1, 4]))
      : content.includes(Buffer.from([0x2b, 6, 1, 6, 3, 1, 1, 5, 5]));
    traps.push({version, wrongCommunity});
  }
  return traps;
}

test('Traps go out in the versions that are chosen, and about wrong communities when that is', {user: 'admin'}, async (page) => {
  php('create_snmp_trap_reg($session, 1, "10.20.0.1", "16201");');
  const choose = async (version1, version2, wrongCommunity) => {
    await open(page, 'snmp.php');
    await page.setChecked('#trap1', version1);
    await page.setChecked('#trap2', version2);
    await page.setChecked('#auth_traps_enabled', wrongCommunity);
    await press(page, 'Save');
    assert.equal(await messages(page), 'The SNMP agent is set and has restarted.');
    assert.equal(await page.isChecked('#trap1'), version1);
    assert.equal(await page.isChecked('#trap2'), version2);
    assert.equal(await page.isChecked('#auth_traps_enabled'), wrongCommunity);
    await open(page, 'traps.php');
    await press(page, 'Send a test trap');
  };
  // What the agent sends once it is set, and the test after it.
  const sent = (versions, wrongCommunity) => datagramsTo(16201, async (received) => {
    await choose(versions.includes('1'), versions.includes('2c'), wrongCommunity);
    const before = received().length;
    const traps = () => trapsIn(received().subarray(before));
    const versionsSent = () => [...new Set(traps().map((trap) => trap.version))].sort();
    // A datagram that comes while the agent starts is lost.
    await until(() => {
      snmpGet('2c', 'wrong');
      return !wrongCommunity || traps().some((trap) => trap.wrongCommunity);
    }, 'a trap about it');
    await press(page, 'Send a test trap');
    await until(() => versions.every((version) => versionsSent().includes(version)), 'the test trap');
    assert.deepEqual(versionsSent(), versions);
    assert.equal(traps().some((trap) => trap.wrongCommunity), wrongCommunity);
  });
  await sent(['1'], true);
  await sent(['2c'], false);
  await sent(['1', '2c'], true);
  await choose(true, false, false);
  php('delete_snmp_trap_reg($session, get_snmp_trap_regs($session)[0]->id);');
});

test('An agent that does not restart is reported with the code', {user: 'admin'}, async (page) => {
  await withScript('restartSNMP.sh', 'exit 1', async () => {
    await open(page, 'snmp.php');
    await page.check('#trap2');
    await press(page, 'Save');
    assert.match(await messages(page), /^Could not restart SNMP\n+The settings are stored, but the agent does not answer\.\n[^]*Code 0x/);
  });
  // What is stored already is set all the same: the agent is down.
  await press(page, 'Save');
  assert.equal(await messages(page), 'The SNMP agent is set and has restarted.');
  await page.uncheck('#trap2');
  await press(page, 'Save');
});

test('SNMP settings that cannot be', {user: 'admin'}, async (page) => {
  await open(page, 'snmp.php');
  await showCommunity(page);
  await refused(page, 'Save', 'main', [
    [{community_name: ''}, {community_name: /1 to 32/}],
    [{community_name: 'a b'}, {community_name: /1 to 32/}],
    [{community_name: 'a"b'}, {community_name: /1 to 32/}],
    [{community_name: 'a\'b'}, {community_name: /1 to 32/}],
    [{community_name: 'é'}, {community_name: /1 to 32/}],
    [{community_name: 'a'.repeat(35)}, {community_name: /^Too long by 3: enter 1 to 32/}],
  ]);
  await page.fill('#community_name', 'public');
  await page.uncheck('#trap1');
  await press(page, 'Save');
  assert.equal(await errorOf(page, 'trap1'), 'Choose at least one.');
  assert.match(snmpGet('2c', 'public'), /library/);
});

function receivers() {
  return JSON.parse(php('echo json_encode(get_snmp_trap_regs($session));'));
}

test('A trap receiver is added, tested and deleted', {user: 'admin'}, async (page) => {
  await open(page, 'traps.php');
  assert.match(await page.innerText('main'), /There are none, so/);
  await page.fill('#ip', '10.20.0.1');
  await page.fill('#port', '16200');
  await press(page, 'Add');
  assert.equal(await messages(page), 'The receiver 10.20.0.1 is added.');
  assert.deepEqual(receivers().map(({transport, ip, port}) => [transport, ip, port]), [[1, '10.20.0.1', 16200]]);
  await page.fill('#ip', '2001:db8:20::1');
  await page.check('#transport-2');
  await press(page, 'Add');
  const rows = await page.locator('tbody tr:not(.question)').evaluateAll((all) => all.map((row) =>
    [...row.cells].slice(0, 3).map((cell) => cell.innerText.trim())));
  assert.deepEqual(rows, [['10.20.0.1', '16200', 'UDP'], ['2001:db8:20::1', '162', 'TCP']]);

  await page.click('summary:has-text("2001:db8:20::1")');
  await press(page, 'Delete 2001:db8:20::1');
  assert.equal(await messages(page), 'The receiver 2001:db8:20::1 is deleted.');
  await datagramsTo(16200, async (received) => {
    await press(page, 'Send a test trap');
    assert.match(await messages(page), /^A test trap was sent to every receiver/);
    await until(() => received().includes('public'), 'a trap');
  });
  await page.click('summary:has-text("10.20.0.1")');
  await press(page, 'Delete 10.20.0.1');
  assert.deepEqual(receivers(), []);
});

for (const javaScriptEnabled of [true, false]) {
  test(`Deleting asks below the receiver, and nothing shifts, with${javaScriptEnabled ? '' : 'out'} scripts`, {javaScriptEnabled}, async (page) => {
    php('foreach (get_snmp_trap_regs($session) as $receiver) delete_snmp_trap_reg($session, $receiver->id);'
      + 'create_snmp_trap_reg($session, 1, "10.20.0.9", "16200"); create_snmp_trap_reg($session, 1, "10.20.0.8", "162");');
    await signIn(page, 'admin', 'traps.php');
    const places = () => page.locator('thead th, tbody tr:not(.question) > * ').evaluateAll((all) => all.map((cell) => {
      const {left, width} = cell.getBoundingClientRect();
      return [Math.round(left), Math.round(width)];
    }));
    const before = await places();
    assert.equal(await page.locator('tr.question:visible').count(), 0, 'nothing is asked yet');
    await page.click('summary:has-text("10.20.0.9")');
    assert.deepEqual(await places(), before, 'no column shifts');
    const [question, receiver] = [await page.locator('tr.question:visible').boundingBox(),
      await page.locator('tbody tr:has(th:text-is("10.20.0.9"))').boundingBox()];
    assert.ok(Math.abs(question.y - receiver.y - receiver.height) < 2, 'right below');
    assert.ok(Math.abs(question.width - receiver.width) < 2, 'as wide as the list');
    // It asks with a script.
    if (javaScriptEnabled) assert.deepEqual(await accessibilityFaults(page), []);
    await page.click('summary:has-text("10.20.0.9")');
    assert.equal(await page.locator('tr.question:visible').count(), 0, 'folded again, nothing is asked');
    await page.click('summary:has-text("10.20.0.9")');
    await page.keyboard.press('Tab');
    assert.equal(await page.evaluate(() => document.activeElement.innerText), 'Delete 10.20.0.9', 'the keyboard comes to it next');
    const navigated = page.waitForNavigation();
    await page.keyboard.press('Enter');
    await navigated;
    assert.equal(await messages(page), 'The receiver 10.20.0.9 is deleted.');
    assert.deepEqual(receivers().map(({ip}) => ip), ['10.20.0.8']);
    php('delete_snmp_trap_reg($session, get_snmp_trap_regs($session)[0]->id);');
  });
}

test('A receiver that somebody else has deleted meanwhile', {user: 'admin'}, async (page) => {
  php('create_snmp_trap_reg($session, 1, "10.20.0.9", "162");');
  await open(page, 'traps.php');
  php('delete_snmp_trap_reg($session, get_snmp_trap_regs($session)[0]->id);');
  await page.click('summary:has-text("10.20.0.9")');
  await press(page, 'Delete 10.20.0.9');
  assert.equal(await messages(page), 'This receiver is not in the list any more.');
});

test('A list of receivers that somebody else has changed meanwhile is shown before one is added', {user: 'admin'}, async (page) => {
  const clear = 'foreach (get_snmp_trap_regs($session) as $receiver) delete_snmp_trap_reg($session, $receiver->id);';
  await open(page, 'traps.php');
  php('create_snmp_trap_reg($session, 2, "10.20.0.9", "162");');
  await page.fill('#ip', '10.20.0.8');
  await press(page, 'Add');
  assert.match(await page.innerText('main'), /Receiver: none when you opened it, 10\.20\.0\.9, port 162, TCP now/);
  assert.equal(receivers().length, 1, 'none was added');
  assert.equal(await page.inputValue('#ip'), '10.20.0.8', 'nothing typed is lost');
  php(clear);
  await press(page, 'Add');
  assert.match(await page.innerText('main'), /Receiver: 10\.20\.0\.9, port 162, TCP when you opened it, none now/);
  await press(page, 'Add');
  assert.equal(await messages(page), 'The receiver 10.20.0.8 is added.');
  await page.fill('#ip', '10.20.0.8');
  await press(page, 'Add');
  assert.equal(await messages(page), 'These are the settings already; nothing was changed.');
  assert.deepEqual(receivers().map(({ip}) => ip), ['10.20.0.8']);

  // Under the number that the form has there is another receiver.
  await page.evaluate(() => { document.querySelector('.question [name=seen]').value = document.querySelector('.question [name=id]').value
    + '=10.20.0.7%2C+port+162%2C+UDP'; });
  await page.click('summary:has-text("10.20.0.8")');
  await press(page, 'Delete 10.20.0.8');
  assert.match(await page.innerText('main'), /Receiver: 10\.20\.0\.7, port 162, UDP when you opened it, 10\.20\.0\.8, port 162, UDP now/);
  assert.equal(receivers().length, 1);
  php(clear);
});

test('Trap receivers that cannot be', {user: 'admin'}, async (page) => {
  await open(page, 'traps.php');
  await refused(page, 'Add', 'main', [
    [{ip: '', port: ''}, {ip: /IPv4 or IPv6/, port: /1 to 65535/}],
    [{ip: 'manager.example', port: '162'}, {ip: /IPv4 or IPv6/}],
    [{ip: '0.0.0.0', port: '162'}, {ip: /No other device/}],
    [{ip: 'ff02::1', port: '162'}, {ip: /No other device/}],
    [{ip: '10.20.0.1', port: '0'}, {port: /1 to 65535/}],
    [{ip: '10.20.0.1', port: '65536'}, {port: /1 to 65535/}],
    [{ip: '10.20.0.1', port: '-1'}, {port: /1 to 65535/}],
  ]);
  await refused(page, 'Add', 'main', [[{ip: '192.168.250.9', port: '162'},
    {ip: /^The network 192\.168\.250\.0\/24 is used inside the appliance/}]]);
  await withoutList(async () => {
    await press(page, 'Add');
    assert.match(await messages(page), /^Nothing was changed\. Correct what is marked and save again\.\n+Details\n+Internal Address Conflict\. Code 0x00050040, reported at \S+:\d+$/);
    assert.match(await errorOf(page, 'ip'), /used inside the appliance/);
  });
  assert.deepEqual(receivers(), [], 'what the module adds after its report is taken back');
});

test('The twenty-first trap receiver is refused', {user: 'admin'}, async (page) => {
  php('for ($i = 1; $i <= 20; $i++) create_snmp_trap_reg($session, 1, "10.20.0.$i", "162");');
  await open(page, 'traps.php');
  assert.equal(await page.locator('tbody tr:has(th)').count(), 20);
  await page.fill('#ip', '10.20.0.21');
  await press(page, 'Add');
  assert.match(await messages(page), /Could not create trap registration\n+The receiver was not added\. There can be 20/);
  assert.equal(await page.inputValue('#ip'), '10.20.0.21');
  php('foreach (get_snmp_trap_regs($session) as $receiver) delete_snmp_trap_reg($session, $receiver->id);');
});

test('While receivers are tested the session is served all the same', {user: 'admin'}, async (page, context) => {
  php('create_snmp_trap_reg($session, 1, "10.20.0.1", "162");');
  await withScript('testTrapRegistration.sh', ': >/run/test.begun; until [ -e /run/test.end ]; do sleep 0.1; done', async () => {
    await open(page, 'traps.php');
    const tested = press(page, 'Send a test trap');
    await until(() => fs.existsSync('/run/test.begun'), 'the test');
    const other = await context.newPage();
    await other.goto(new URL('dns.php', page.url()).href);
    assert.equal(await other.innerText('h1'), 'DNS');
    await other.close();
    fs.writeFileSync('/run/test.end', '');
    await tested;
    assert.match(await messages(page), /^A test trap was sent to every receiver/);
  });
  php('delete_snmp_trap_reg($session, get_snmp_trap_regs($session)[0]->id);');
});

test('A receiver that cannot be sent to is reported', {user: 'admin'}, async (page) => {
  php('create_snmp_trap_reg($session, 2, "10.20.0.1", "9");');
  await open(page, 'traps.php');
  await press(page, 'Send a test trap');
  assert.match(await messages(page), /Failed to restart\/test trap registration\n+At least one receiver/);
  php('foreach (get_snmp_trap_regs($session) as $receiver) delete_snmp_trap_reg($session, $receiver->id);');
});

// trial.test.cjs has what happens with one.
async function applyWithoutTrial(page) {
  await page.selectOption('#trial', '0');
  await press(page, 'Apply');
}

test('IPv6 is switched on and off, and shows the addresses in use', {user: 'admin'}, async (page) => {
  await open(page, 'ipv6.php');
  assert.equal(await beside(page, 'IPv6'), 'Off');
  assert.match(await page.innerText('section >> nth=0'), /None, because IPv6 is off\./);
  await page.check('#enabled');
  await applyWithoutTrial(page);
  assert.match(await messages(page), /^IPv6 is on/);
  await until(() => addresses('inet6').length > 0, 'an address from router advertisements');
  await open(page, 'ipv6.php');
  assert.equal(await beside(page, 'IPv6'), 'On');
  assert.deepEqual((await page.locator('.addresses li').allInnerTexts()).filter((text) => !text.endsWith('link-local')),
    addresses('inet6').map((text) => `${text.split('/')[0]} from router advertisements`));

  await page.uncheck('#enabled');
  await applyWithoutTrial(page);
  assert.equal(await messages(page), 'IPv6 is off.');
  await until(() => addresses('inet6').length === 0, 'the addresses to go');
});

test('The sources of IPv6 addresses', {user: 'admin'}, async (page) => {
  php('set_ipv6_enabled($session, true);');
  await open(page, 'ipv6.php');
  await page.uncheck('#stateless');
  await page.check('#dhcp');
  await applyWithoutTrial(page);
  assert.match(await messages(page), /^The sources of addresses are set/);
  assert.ok(fs.existsSync('/etc/ipv6dhcp'));
  assert.equal(ask('ipv6Manager.sh', '-l'), '0');
  await until(() => addresses('inet6').some((address) => /^2001:db8:20::1[0-9a-f]{2}\//.test(address)), 'a lease');
  await open(page, 'ipv6.php');
  assert.equal(await beside(page, 'Router advertisements'), 'Off');
  assert.equal(await beside(page, 'DHCP'), 'On');
  await page.check('#stateless');
  await page.uncheck('#dhcp');
  await applyWithoutTrial(page);
  assert.ok(!fs.existsSync('/etc/ipv6dhcp'));
  assert.equal(ask('ipv6Manager.sh', '-l'), '1');
  php('set_ipv6_enabled($session, false);');
});

test('A source that cannot be switched is reported, and the other is switched all the same', {user: 'admin'}, async (page) => {
  php('set_ipv6_enabled($session, true);');
  await withScript('ipv6Manager.sh', 'case "$*" in "-c -d on") exit 1 ;; *) exec sh "$ORIGINAL" "$@" ;; esac', async () => {
    await open(page, 'ipv6.php');
    await page.uncheck('#stateless');
    await page.check('#dhcp');
    await applyWithoutTrial(page);
    assert.match(await messages(page), /^Failed to configure DHCP settings - Make sure[^]*Code 0x00050030/);
    assert.equal(await beside(page, 'DHCP'), 'Off');
    assert.equal(await beside(page, 'Router advertisements'), 'Off');
  });
  php('set_stateless_enabled($session, true); set_ipv6_enabled($session, false);');
});

test('Static IPv6 settings that cannot be', {user: 'admin'}, async (page) => {
  await open(page, 'ipv6.php');
  await page.check('#enabled');
  await page.check('#static');
  const good = {ipStatic: '2001:db8:20::7', prefix: '64', gateway: 'fe80::1'};
  await refused(page, 'Apply', 'main', [
    [{ipStatic: '', prefix: '', gateway: ''}, {ipStatic: /Enter an IPv6/, prefix: /1 to 128/, gateway: /router/}],
    [{...good, ipStatic: '10.20.0.7'}, {ipStatic: /Enter an IPv6/}],
    [{...good, ipStatic: '2001:db8::g'}, {ipStatic: /Enter an IPv6/}],
    [{...good, ipStatic: 'ff02::1'}, {ipStatic: /cannot have/}],
    [{...good, ipStatic: '::1'}, {ipStatic: /cannot have/}],
    [{...good, ipStatic: '::ffff:10.20.0.7'}, {ipStatic: /cannot have/}],
    [{...good, ipStatic: 'fe80::7'}, {ipStatic: /link-local address of its own/}],
    [{...good, prefix: '064'}, {prefix: /1 to 128/}],
    [{...good, gateway: 'ff02::1'}, {gateway: /router/}],
    [{...good, prefix: '0'}, {prefix: /1 to 128/}],
    [{...good, prefix: '129'}, {prefix: /1 to 128/}],
    [{...good, gateway: '2001:db8:21::1'}, {gateway: /same first 64 bits/}],
    [{...good, gateway: '2001:DB8:20:0::7'}, {gateway: /itself/}],
  ]);
  assert.equal(ask('ipv6Manager.sh', '-g', 'static'), '');
  assert.equal(php('echo is_ipv6_enabled() ? "on" : "off";'), 'off');
});
