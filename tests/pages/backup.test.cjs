// All settings as a file, and back.
'use strict';

const assert = require('node:assert/strict');
const {spawnSync} = require('node:child_process');
const fs = require('node:fs');
const path = require('node:path');
const {applianceFolder, ask, fromLan, inAppliance, ipv4Address, php, traceLog, until, web, withScript} = require('./appliance.cjs');
const {accessibilityFaults, base, errorOf, messages, open, press, signIn, test} = require('./browser.cjs');
const {answersAt, keepWhatIs, reaches, setStatic, trial} = require('./on_trial.cjs');

const networks = path.resolve(__dirname, '../../appliance/device/etc/internal_networks');
const head = '[backup]\nversion = 1\n';
const snmp = '[snmp]\nversions-1-and-2c = on\ncommunity = public\ntraps-1 = on\ntraps-2c = off\ntrap-on-wrong-community = off\n';

// What the page makes of a file, without the page.
function read(text) {
  const {stdout, stderr} = spawnSync('php', [`${__dirname}/read_backup.php`, networks], {input: text, encoding: 'utf8'});
  assert.equal(stderr, '');
  return JSON.parse(stdout);
}

// Line by line: what is wrong with the file.
const wrongFiles = [
  ['', {0: /^The file is empty/}],
  [' \r\n\t\n', {0: /^The file is empty/}],
  [`${head}#${'x'.repeat(65536)}`, {0: /longer than 64 KiB/}],
  ['\0', {1: /control character/}],
  [`${head}[dns]\nprimary = 10.20.0.1\0`, {4: /control character/}],
  [`${head}# a\rb`, {3: /control character/}],
  [`${head}# \x7f`, {3: /control character/}],
  [Buffer.from(`${head}# caf\xe9`, 'latin1'), {3: /not in UTF-8/}],
  [Buffer.from([0xff, 0xfe, 0x5b, 0x00]), {1: /^The file is in UTF-16\. Save it as plain text in UTF-8\.$/}],
  [Buffer.from(`\ufeff${head}`, 'utf16le').swap16(), {1: /in UTF-16/}],
  [Buffer.from(head, 'utf16le'), {1: /in UTF-16/}],
  [Buffer.from(head, 'utf16le').swap16(), {1: /in UTF-16/}],
  [Buffer.from([0xff, 0xfe, 0, 0, 0x5b, 0, 0, 0]), {1: /in UTF-32/}],
  [head.replaceAll('\n', '\r') + '[name]\rhost = a_b\r', {4: /only letters/}],
  [Buffer.from([...Buffer.from(`${head}# `), 0xc0, 0x80]), {3: /not in UTF-8/}],
  [Buffer.from([...Buffer.from(`${head}# `), 0xed, 0xa0, 0x80]), {3: /not in UTF-8/}],
  [`${head}# ${'x'.repeat(499)}`, {3: /longer than 500 bytes/}],
  [fs.readFileSync('/bin/sh').subarray(0, 60000), {1: /control character/}],

  ['[dns]\nprimary = 10.20.0.1\nsecondary =\n', {1: /The version is missing/}],
  ['hello\n', {1: /The version is missing/}],
  ['[backup]\nhost = library\n[dns]\n', {1: /The version is missing/}],
  ['# remark\n\n[backup]\nversion = 2\n[new]\nthing\n', {4: /another version; these pages read version 1/}],
  ['[backup]\nversion =\n', {2: /another version/}],
  ['[backup]\nversion = 1.0\n', {2: /another version/}],
  [`${head}version = 1\n`, {3: /"version" is in this section twice: line 2/}],
  [`${head}[backup]\n`, {3: /\[backup\] is here twice: it begins in line 1/}],
  [`version = 1\n${head}`, {1: /before the first section/}],

  [`${head}[nothing]\na = b\nnonsense\n`, {3: /no such section.*\[dns\]/, 5: /neither a section/}],
  [`${head}[dns\nprimary = x\n`, {3: /no such section/}],
  [`${head}[]\n`, {3: /no such section/}],
  [`${head}[\n`, {3: /no such section/}],
  [`${head}[name]\nhost = a\n[name]\nhost = b\n`, {5: /is here twice: it begins in line 3/, 6: /"host" is in this section twice: line 4/}],
  [`${head}[name]\nhost = a\nname = b\n`, {5: /\[name\] has no "name"\. It has host/}],
  [`${head}[name]\nhost\n`, {4: /neither a section/}],
  [`${head}[name]\n= a\n`, {4: /neither a section/}],
  [`${head}[name]\nHost name = a\n`, {4: /neither a section/}],
  [`${head}[name]\n`, {3: /\[name\] lacks "host"/}],
  ...['1e1', '010', '10.0', '+10'].map((speed) => [`${head}[port]\nautonegotiation = on\nspeed = ${speed}\nduplex = full\n`,
    {5: /"speed" is one of: 10, 100\./}]),
  [`${head}[name]\nhost =\n`, {4: /Enter a name/}],
  [`${head}[name]\nhost = ${'a'.repeat(65)}\n`, {4: /too long: at most 64/}],
  [`${head}[name]\nhost = a_b\n`, {4: /only letters/}],
  [`${head}[name]\nhost = a; reboot\n`, {4: /only letters/}],

  [`${head}[dns]\nprimary = 10.20.0.1\n`, {3: /\[dns\] lacks "secondary"/}],
  [`${head}[dns]\nprimary =\nsecondary = 10.20.0.1\n`, {4: /Enter the only server here/}],
  [`${head}[dns]\nprimary = 10.20.0.256\nsecondary = 192.168.250.7\n`, {4: /IPv4 or IPv6/, 5: /used inside the appliance/}],
  [`${head}[port]\nautonegotiation = maybe\nspeed = 1000\nduplex = full\n`, {4: /one of: on, off/, 5: /one of: 10, 100/}],
  [`${head}[port]\nautonegotiation =\nspeed = 10\nduplex = full\n`, {4: /one of: on, off/}],
  [head + snmp.replace('public', 'two words'), {5: /without blanks/}],
  [head + snmp.replace('public', 'x'.repeat(33)), {5: /1 to 32/}],
  [head + snmp.replace('public', ''), {5: /1 to 32/}],
  [head + snmp.replace('traps-1 = on', 'traps-1 = off'), {6: /at least one/}],
  [`${head}[traps]\nreceiver = 10.20.0.1\n`, {4: /written as "udp/}],
  [`${head}[traps]\nreceiver = udp 10.20.0.1 162 x\n`, {4: /written as "udp/}],
  [`${head}[traps]\nreceiver = sctp 10.20.0.1 162\n`, {4: /written as "udp/}],
  [`${head}[traps]\nreceiver = udp manager 0\n`, {4: /IPv4 or IPv6.*1 to 65535/}],
  [`${head}[traps]\nreceiver = udp 192.168.250.9 162\n`, {4: /used inside the appliance/}],
  [`${head}[traps]\nreceiver = udp 2001:db8::1 162\nreceiver = UDP 2001:DB8:0::1 00162\n`, {5: /is here twice: line 4/}],
  [`${head}[traps]\n${Array.from({length: 21}, (all, i) => `receiver = udp 10.20.0.${i + 1} 162\n`).join('')}`, {24: /20 receivers at most/}],
  [`${head}[ipv4]\nmode = dhcp\naddress = 10.20.0.7\n`, {5: /"address" needs "mode = static"/}],
  [`${head}[ipv4]\nmode = static\naddress = 10.20.0.7\nnetmask = 255.255.255.0\n`, {3: /lacks "gateway"/}],
  [`${head}[ipv4]\nmode = static\naddress = 10.20.0.0\nnetmask = 255.0.255.0\ngateway = 10.20.1.1\n`, {6: /netmask such as/}],
  [`${head}[ipv4]\nmode = static\naddress = 10.20.0.7\nnetmask = 255.255.255.0\ngateway = 10.20.1.1\n`, {7: /same network/}],
  [`${head}[ipv4]\naddress = 10.20.0.7\n`, {3: /lacks "mode"/}],
  [`${head}[ipv6-static]\nenabled = off\nprefix = 64\n`, {5: /"prefix" needs "enabled = on"/}],
  [`${head}[ipv6-static]\nenabled = on\naddress = fe80::7\nprefix = 129\ngateway = ::1\n`,
    {5: /link-local/, 6: /1 to 128/, 7: /IPv6 address of the router/}],
  [`${head}[ipv6]\nenabled = 1\n`, {4: /one of: on, off/}],
  // All that is wrong is said at once, and of each cause only what is sure.
  [`${head}[name]\nhost = <b>x\n[port]\nautonegotiation = off\nspeed = 1000\nduplex = full\n[dns]\nprimary = 10.20.0.256\nsecondry = 10.20.0.1\n`,
    {4: /only letters/, 7: /one of: 10, 100/, 10: /IPv4 or IPv6/, 11: /has no "secondry"/}],
  [`${head}[nothing]\n[name]\nhost = a_b\n`, {3: /no such section/, 5: /only letters/}],
  [`${head}[port]\nspeed = 1000\n`, {3: /lacks "autonegotiation"/, 4: /one of: 10, 100/}],
  [`${head}[ipv4]\nmode = statik\naddress = 10.20.0.256\n`, {4: /one of: dhcp, static/}],
  [`${head}[ipv4]\nmode = static\naddress = 10.20.0.256\n`, {3: /lacks "netmask"/, 5: /four numbers/}],
  [`${head}[ipv6-static]\nenabled = yes\nprefix = 129\n`, {4: /one of: on, off/}],
  [head + snmp.replace('public', 'two words').replace('traps-1 = on', 'traps-1 = yes'), {5: /without blanks/, 6: /one of: on, off/}],
  [`${head}[web]\nhttps = on\nport = 443\n`, {5: /\[web\] has no "port"/}],
];

test('What cannot be a file of settings is refused with its lines', {}, async () => {
  for (const [text, expected] of wrongFiles) {
    const {errors} = read(text);
    const what = JSON.stringify(String(text).slice(0, 200));
    assert.deepEqual(Object.keys(errors), Object.keys(expected), `${what}: ${JSON.stringify(errors)}`);
    for (const line of Object.keys(expected)) assert.match(errors[line], expected[line], what);
  }
});

test('What people make of a file is read all the same', {}, async () => {
  const dns = {dns: {primary: '10.20.0.1', secondary: ''}};
  for (const [text, parts] of [
    [head, {}],
    [`${head}[dns]\nprimary = 10.20.0.1\nsecondary =\n`, dns],
    [`${head}[dns]\nprimary = 10.20.0.1\nsecondary =\n`.replaceAll('\n', '\r\n'), dns],
    [`${head}[dns]\nprimary = 10.20.0.1\nsecondary =\n`.replaceAll('\n', '\r'), dns],
    [`\ufeff# Größe: 5 µ 😀\n\n  ${head}\t[ DNS ]\n  Primary=10.20.0.1  \nSECONDARY =\n#primary = 10.20.0.2`, dns],
    [`${head}[dns]\nsecondary =\n# between\nprimary = 10.20.0.1`, dns],
    [`${head}# ${'x'.repeat(498)}\n`, {}],
    [head + snmp.replace('public', '#a=b=[c]'), {snmp: {'versions-1-and-2c': 'on', community: '#a=b=[c]', 'traps-1': 'on', 'traps-2c': 'off',
      'trap-on-wrong-community': 'off'}}],
    [`${head}[traps]\n`, {traps: []}],
    [`${head}[traps]\nreceiver =  TCP\t2001:DB8:0::1   00162\nreceiver = udp 2001:db8::1 162`, {traps: ['tcp 2001:db8::1 162', 'udp 2001:db8::1 162']}],
    [`${head}[ipv4]\nmode = DHCP\n[ipv6-static]\nenabled = Off\n`, {ipv4: {mode: 'dhcp'}, 'ipv6-static': {enabled: 'off'}}],
    [`${head}host = x\ntaken = some day\n`, {}],
  ]) {
    const file = read(text);
    assert.deepEqual(file.errors, {}, text);
    assert.deepEqual(file.parts, parts, text);
    assert.deepEqual(read(file.again).parts, file.parts, `${text} written and read again`);
  }
});

async function choose(page, text, name = 'settings.txt') {
  await open(page, 'backup.php');
  await page.setInputFiles('#file', {name, mimeType: 'text/plain', buffer: Buffer.from(text)});
  await press(page, 'Compare');
}

async function download(page) {
  await open(page, 'backup.php');
  const [file] = await Promise.all([page.waitForEvent('download'), page.click('button:text-is("Download")')]);
  assert.match(file.suggestedFilename(), /^settings-[A-Za-z0-9.-]+-\d{8}-\d{6}\.txt$/);
  return fs.readFileSync(await file.path(), 'utf8');
}

// Cells of the rows that differ: setting, now, in the file.
function rows(page, within = 'main') {
  return page.locator(`${within} >> .part tbody tr`).evaluateAll((all) => all.map((row) => [...row.cells].map((cell) => cell.innerText.trim())));
}

function results(page) {
  return page.locator('#results + dl > *').allInnerTexts();
}

function dns() {
  return php('$dns = get_network_dns($session); echo "$dns->dnsPrimary $dns->dnsSecondary";');
}

// All that a file has, as the module says it.
function everything() {
  return php(`$receivers = array();
    foreach (get_snmp_trap_regs($session) as $receiver) $receivers[] = "$receiver->transport $receiver->ip $receiver->port";
    sort($receivers);
    $ipv6 = get_network_configuration_ipv6($session);
    echo json_encode(array(get_network_hostname(), get_network_dns($session), get_eth2_port_settings($session), get_snmp_settings($session),
      $receivers, get_network_configuration_ipv4($session), is_ipv6_enabled(), is_stateless_enabled(), is_ipv6_dhcp_enabled(), $ipv6));`);
}

function audit() {
  return fs.readFileSync(`${applianceFolder}/HTTPService/dat/audit`, 'utf8').trim().split('\n').map((line) => line.split('\t'));
}

// Chooses the file, applies one of its parts on trial, and is back under the new settings.
async function applyOnTrial(page, text, title) {
  await choose(page, text);
  await press(page, `Apply ${title}`);
  if (await page.innerText('h1') === 'Before it is applied') await press(page, 'Apply');
  await reaches('kept');
}

test('Leaving after a file was chosen asks; comparing it does not', {user: 'admin'}, async (page) => {
  let asked = 0;
  page.on('dialog', (dialog) => { if (dialog.type() === 'beforeunload') asked += 1; });
  await open(page, 'backup.php');
  await page.click('h1'); // a browser asks only where something was done
  await open(page, 'backup.php');
  assert.equal(asked, 0, 'nothing was chosen');
  await page.setInputFiles('#file', {name: 'settings.txt', mimeType: 'text/plain', buffer: Buffer.from(head)});
  await page.click('h1');
  await open(page, 'index.php');
  assert.equal(asked, 1);
  asked = 0;
  await choose(page, head);
  assert.equal(await page.innerText('h1'), 'Compare and apply');
  assert.equal(asked, 0, 'it is sent');
});

test('Download, change everything, upload: all is as before', {}, async (page) => {
  await setStatic('10.20.0.7');
  php(`set_network_hostname($session, "before"); create_snmp_trap_reg($session, 1, "10.20.0.9", "162");
    create_snmp_trap_reg($session, 2, "2001:db8:20::9", "1162"); set_eth2_port_settings($session, 0, 10, 0);
    class Dns { var $dnsPrimary = "10.20.0.1"; var $dnsSecondary = "2001:db8:20::1"; } set_network_dns($session, new Dns());`);
  php('$snmp = get_snmp_settings($session); $snmp->community_name = "was-secret"; set_snmp_settings($session, $snmp);');
  const before = everything();
  await signIn(page);
  const text = await download(page);
  assert.match(text, /^# Network settings of the appliance/);
  assert.match(text, /IN THIS FILE is the read community/);
  assert.match(text, /\ncommunity = was-secret\n/);
  assert.match(text, /NOT IN IT, because these pages cannot read them, are the passwords/);
  assert.match(text, /\n\[backup\]\nversion = 1\nhost = before\ntaken = \d{4}-\d\d-\d\d \d\d:\d\d:\d\d UTC\n/);
  assert.match(text, /\n\[traps\]\nreceiver = udp 10\.20\.0\.9 162\nreceiver = tcp 2001:db8:20::9 1162\n/);
  assert.match(text, /\n\[ipv4\]\nmode = static\naddress = 10\.20\.0\.7\nnetmask = 255\.255\.255\.0\ngateway = 10\.20\.0\.1\n/);
  assert.ok(!await page.isDisabled('button:text-is("Download")'), 'it can be downloaded again');

  await choose(page, text);
  assert.equal(await page.innerText('h1'), 'Compare and apply');
  assert.match(await page.innerText('main'), /Differs\s+Nothing/);
  assert.equal(await page.locator('button:text-is("Apply")').count(), 0);

  php(`set_network_hostname($session, "after"); foreach (get_snmp_trap_regs($session) as $receiver) delete_snmp_trap_reg($session, $receiver->id);
    create_snmp_trap_reg($session, 1, "10.20.0.10", "162"); set_eth2_port_settings($session, 1, 100, 1);
    class Dns { var $dnsPrimary = ""; var $dnsSecondary = ""; } set_network_dns($session, new Dns());
    $snmp = get_snmp_settings($session); $snmp->community_name = "is-secret"; $snmp->trap2 = !$snmp->trap2; set_snmp_settings($session, $snmp);
    set_stateless_enabled($session, !is_stateless_enabled()); set_ipv6_dhcp_enabled($session, !is_ipv6_dhcp_enabled());`);
  await setStatic('10.20.0.8');
  assert.notEqual(everything(), before);

  await signIn(page);
  await choose(page, text);
  const titles = await page.locator('.parts .mark label').allInnerTexts();
  assert.deepEqual(titles, ['Host name', 'DNS', 'Ethernet port', 'SNMP agent', 'Trap receivers']);
  assert.deepEqual((await rows(page)).slice(0, 5), [['Name', 'after', 'before'], ['Primary server', 'None', '10.20.0.1'],
    ['Secondary server', 'None', '2001:db8:20::1'], ['Autonegotiation', 'On', 'Off'], ['Speed in Mbit/s', '100', '10']]);
  assert.ok((await rows(page)).some((row) => row.join('|') === 'Read community|Not shown|Another one'));
  assert.doesNotMatch(await page.content(), /is-secret/);
  for (const box of await page.locator('.parts [type=checkbox]').all()) await box.check();
  await press(page, 'Apply');
  assert.deepEqual(await results(page), ['DNS', 'Applied.', 'Ethernet port', 'Applied.', 'SNMP agent', 'Applied.', 'Trap receivers',
    'Applied.', 'Host name', 'Applied.']);
  assert.equal(await page.locator('.parts').count(), 0, 'only what is on trial differs');
  const last = audit().slice(-9).map((fields) => fields[3]);
  for (const sentence of ['Set the DNS servers as in a file.', 'Set the host name as in a file.',
    'Added the trap receiver 10.20.0.9, port 162, UDP, as in a file.',
    'Deleted the trap receiver 10.20.0.10, port 162, UDP, as it is not in a file.']) assert.ok(last.includes(sentence), last.join('\n'));
  const noted = fs.readFileSync(`${applianceFolder}/HTTPService/dat/audit`, 'utf8');
  assert.doesNotMatch(noted.split('\n').filter((line) => /SNMP agent as in/.test(line)).join(), /was-secret|is-secret/);

  // These too can do without one.
  await choose(page, text);
  await page.selectOption('#trial-ipv6-automatic', '0');
  await press(page, 'Apply Automatic IPv6 addresses');
  assert.match(await messages(page), /^The sources of addresses are/);
  await applyOnTrial(page, text, 'IPv4 address');
  await page.waitForURL(/10\.20\.0\.7/, {timeout: 60000});
  await page.waitForSelector('h1:text-is("Kept")');
  await answersAt('10.20.0.7');
  assert.equal(everything(), before);
  await choose(page, text);
  assert.match(await page.innerText('main'), /Differs\s+Nothing/);
});

test('Without scripts, in parts: what is not chosen or not in the file stays', {javaScriptEnabled: false}, async (page) => {
  await signIn(page);
  const name = php('echo get_network_hostname();');
  const receivers = everything();
  await choose(page, `${head}[dns]\nprimary = 10.20.0.3\nsecondary = 10.20.0.4\n[name]\nhost = parts\n`);
  assert.match(await page.innerText('main'), /Not in it\s+Ethernet port, SNMP agent, Trap receivers, IPv4 address/);
  await press(page, 'Apply');
  assert.match(await messages(page), /Nothing was changed/);
  assert.match(await page.innerText('.parts'), /Choose at least one part/);
  assert.equal(everything(), receivers);
  await page.check('#part-dns');
  await press(page, 'Apply');
  assert.deepEqual(await results(page), ['DNS', 'Applied.']);
  assert.equal(dns(), '10.20.0.3 10.20.0.4');
  assert.equal(php('echo get_network_hostname();'), name);
  assert.deepEqual(await rows(page), [['Name', name, 'parts']], 'the rest is still offered');
  await page.reload(); // which sends it once more
  assert.deepEqual(await results(page), ['DNS', 'Is as in the file already.']);
});

test('A file with something wrong is refused at the field, with its lines, and nothing is applied', {user: 'admin'}, async (page) => {
  const before = everything();
  const logged = traceLog().length;
  await choose(page, `${head}[name]\nhost = wrong\n[dns]\nprimary = 10.20.0.300\n<b>&\n`);
  assert.match(await errorOf(page, 'file'), /^The file was refused: below/);
  assert.match(await messages(page), /^Nothing was changed/);
  assert.deepEqual(await page.locator('.wrong-lines tbody tr').allInnerTexts(),
    ['6\tEnter an IPv4 or IPv6 address, such as 10.20.0.1 or 2001:db8:20::1.', '7\tThis is neither a section, such as [dns], nor a setting, such as "primary = 10.20.0.1".']);
  assert.equal(audit().at(-1)[3], 'A file of settings was refused.');
  assert.equal(audit().at(-1)[8], 'refused: line 6');
  await choose(page, head + 'x\n'.repeat(30));
  assert.equal(await page.locator('.wrong-lines tbody tr').count(), 10);
  assert.match(await page.innerText('main'), /not listed: 20/);
  await choose(page, '');
  assert.match(await page.innerText('.wrong-lines'), /All\s+The file is empty/);
  await choose(page, fs.readFileSync('/bin/true').subarray(0, 60000));
  assert.match(await page.innerText('.wrong-lines'), /control character/);
  await choose(page, '#'.repeat(65537));
  assert.match(await errorOf(page, 'file'), /longer than 64 KiB/);
  await open(page, 'backup.php');
  await press(page, 'Compare');
  assert.equal(await errorOf(page, 'file'), 'Choose a file.');
  assert.deepEqual(await accessibilityFaults(page), []);
  assert.equal(everything(), before);
  assert.doesNotMatch(traceLog().slice(logged), /ntering (set|create|delete|restart)_/);
});

async function compareFileOf(page, bytes) {
  await open(page, 'backup.php');
  await page.setInputFiles('#file', {name: 'big', mimeType: 'text/plain', buffer: Buffer.alloc(bytes, 35)}, {timeout: 60000});
  await press(page, 'Compare');
}

test('A file that is longer than the web server takes does not come to the page, and one that is not is said to be too long', {user: 'admin'},
  async (page) => {
    await compareFileOf(page, 1000 << 10);
    assert.match(await errorOf(page, 'file'), /longer than 64 KiB/);
    for (const bytes of [1100 << 10, 9 << 20]) {
      await compareFileOf(page, bytes);
      assert.equal(await page.innerText('h1'), 'This is too much at once');
    }
  });

// A device may have another web server.
test('A file that is longer than the interpreter takes is said to be too long', {user: 'admin', expected: /exceeds the limit/}, async (page) => {
  const own = `${web}/conf/extra/long.conf`;
  const restart = () => inAppliance('sh', '-c', 'kill -USR1 "$(cat /run/appmanager/webServer.pid)"');
  // While it starts anew, and when it refuses before it has read all, a connection may end without an answer.
  const statusOfLong = () => fetch(`${base()}backup.php`, {method: 'POST', body: 'x'.repeat(2 << 20)})
    .then((answer) => answer.status).catch(() => 0);
  fs.writeFileSync(own, '$HTTP["url"] =~ "^/backup\\.php$" { server.max-request-size = 16384 }\n');
  try {
    restart();
    await until(async () => ![0, 413].includes(await statusOfLong()), 'a web server that takes long files');
    await compareFileOf(page, 9 << 20);
    assert.match(await errorOf(page, 'file'), /longer than 64 KiB/);
  } finally {
    fs.unlinkSync(own);
    restart();
    await until(async () => await statusOfLong() === 413, 'the web server of before');
  }
});

test('Two windows: what somebody has changed meanwhile is not overwritten unseen', {user: 'admin'}, async (page, context) => {
  php('class Dns { var $dnsPrimary = "10.20.0.1"; var $dnsSecondary = ""; } set_network_dns($session, new Dns());');
  const text = `${head}[dns]\nprimary = 10.20.0.3\nsecondary =\n[traps]\nreceiver = udp 10.20.0.77 162\n`;
  await choose(page, text);
  const other = await context.newPage();
  await other.goto(page.url());
  await choose(other, text);
  php('class Dns { var $dnsPrimary = "10.20.0.5"; var $dnsSecondary = ""; } set_network_dns($session, new Dns());');
  await page.check('#part-dns');
  await page.check('#part-traps');
  await press(page, 'Apply');
  assert.deepEqual(await results(page), ['DNS', 'Not applied: somebody has changed these settings since you saw them. Compare again below.',
    'Trap receivers', 'Applied.']);
  assert.equal(dns().trim(), '10.20.0.5');
  assert.deepEqual(await rows(page), [['Primary server', '10.20.0.5', '10.20.0.3']]);
  await page.check('#part-dns');
  await press(page, 'Apply');
  assert.equal(dns().trim(), '10.20.0.3');
  await other.check('#part-dns');
  await other.check('#part-traps');
  await press(other, 'Apply');
  assert.deepEqual(await results(other), ['DNS', 'Is as in the file already.', 'Trap receivers', 'Is as in the file already.']);
  php('foreach (get_snmp_trap_regs($session) as $receiver) delete_snmp_trap_reg($session, $receiver->id);');
});

test('A part that fails says so, and the others are applied all the same', {user: 'admin'}, async (page) => {
  php('foreach (get_snmp_trap_regs($session) as $receiver) delete_snmp_trap_reg($session, $receiver->id);');
  await choose(page, `${head}[dns]\nprimary = 10.20.0.21\nsecondary =\n[traps]\nreceiver = tcp 10.20.0.22 162\n`);
  await withScript('ipv6Manager.sh', 'case "$*" in *10.20.0.21*) exit 2 ;; *) exec sh "$ORIGINAL" "$@" ;; esac', async () => {
    await page.check('#part-dns');
    await page.check('#part-traps');
    await press(page, 'Apply');
  });
  assert.deepEqual(await results(page), ['DNS', 'The appliance reports: Failed to set DNS addresses.', 'Trap receivers', 'Applied.']);
  assert.match(audit().at(-2).join(' '), /Tried to set the DNS servers as in a file\./);
  php('foreach (get_snmp_trap_regs($session) as $receiver) delete_snmp_trap_reg($session, $receiver->id);');
});

test('Twenty receivers become twenty others', {user: 'admin'}, async (page) => {
  php('for ($i = 1; $i <= 20; $i++) create_snmp_trap_reg($session, 1, "10.20.0.$i", "162");');
  const wanted = Array.from({length: 20}, (all, i) => `receiver = udp 10.20.0.${i + 11} 162\n`).join('');
  await choose(page, `${head}[traps]\n${wanted}`);
  assert.equal((await rows(page)).length, 20);
  await page.check('#part-traps');
  await press(page, 'Apply');
  assert.deepEqual(await results(page), ['Trap receivers', 'Applied.']);
  assert.equal(php('foreach (get_snmp_trap_regs($session) as $receiver) echo "receiver = udp $receiver->ip $receiver->port\n";'), wanted.trim());
  await choose(page, `${head}[traps]\n`);
  await page.check('#part-traps');
  await press(page, 'Apply');
  assert.equal(php('echo count(get_snmp_trap_regs($session));'), '0');
});

test('What cannot be read is in no file, unless it is left out on purpose', {user: 'admin'}, async (page) => {
  await withScript('ipv6Manager.sh', 'case "$*" in "-g dns") exit 1 ;; *) exec sh "$ORIGINAL" "$@" ;; esac', async () => {
    await open(page, 'backup.php');
    await press(page, 'Download');
    assert.match(await page.innerText('main'), /No file was made: DNS cannot be read/);
    const [file] = await Promise.all([page.waitForEvent('download'), page.click('button:text-is("Download without it")')]);
    const text = fs.readFileSync(await file.path(), 'utf8');
    assert.match(text, /NOT COMPLETE: these could not be read: DNS\./);
    assert.doesNotMatch(text, /\[dns\]/);
    assert.match(text, /\[port\]/);
    await choose(page, `${head}[dns]\nprimary = 10.20.0.3\nsecondary =\n`);
    assert.match(await page.innerText('main'), /Unknown now\s+DNS: cannot be compared/);
    assert.equal(await page.locator('button:text-is("Apply")').count(), 0);
  });
});

async function session(page, context) {
  const cookies = await context.cookies();
  return {cookie: cookies.map(({name, value}) => `${name}=${value}`).join('; '), token: await page.getAttribute('[name=token] >> nth=0', 'value')};
}

function send(cookie, values, file) {
  const body = new FormData();
  for (const [name, value] of Object.entries(values)) body.set(name, value);
  if (file !== undefined) body.set('file', new Blob([file]), 'settings.txt');
  return fetch(`${base()}backup.php`, {method: 'POST', body, redirect: 'manual', headers: {cookie}});
}

// Asks for each of the three things that the page does.
async function getsNothing(cookie, token) {
  const file = `${head}[dns]\nprimary = 10.20.0.66\nsecondary =\n`;
  const before = everything();
  for (const values of [{change: 'download'}, {change: 'upload'}, {change: 'apply', file, part_dns: '1'}]) {
    const answer = await send(cookie, {...values, token}, values.change === 'upload' ? file : undefined);
    assert.equal(answer.status, 403, values.change);
    assert.doesNotMatch(await answer.text(), /community =|versions-1/);
  }
  assert.equal(everything(), before);
}

test('The role monitor has no form, and gets nothing by asking', {user: 'monitor'}, async (page, context) => {
  await open(page, 'backup.php');
  assert.match(await page.innerText('main'), /needs the role admin/);
  assert.equal(await page.locator('main form').count(), 0);
  const {cookie, token} = await session(page, context);
  await getsNothing(cookie, token);
});

test('Who has no form of this session, or no session, gets nothing by asking', {user: 'admin'}, async (page, context) => {
  const {cookie, token} = await session(page, context);
  await getsNothing(cookie, '0'.repeat(token.length));
  await getsNothing(cookie, '');
  await getsNothing('', token);
});

test('What a form carries is looked at again: another file in it is refused, and no part of a trial is applied by it', {user: 'admin'},
  async (page, context) => {
    await open(page, 'backup.php');
    const {cookie, token} = await session(page, context);
    const before = everything();
    for (const file of ['', 'x', `${head}[dns]\nprimary = x\nsecondary =\n`, `${head}[dns]\nprimary = 10.20.0.66\nsecondary =\n`,
      `${head}[ipv4]\nmode = static\naddress = 10.20.0.66\nnetmask = 255.255.255.0\ngateway = 10.20.0.1\n`]) {
      const answer = await send(cookie, {change: 'apply', token, file, part_dns: '1', part_ipv4: '1', part_nothing: '1'});
      assert.equal(answer.status, 200);
      assert.doesNotMatch(await answer.text(), />Applied\./);
    }
    assert.equal((await send(cookie, {change: 'upload', token, file: head})).status, 200, 'a field in the place of a file');
    assert.equal(everything(), before, 'what was not seen is not applied');
  });

test('A full disk: the file does not arrive, or is applied without a word in the audit', {user: 'admin', expected: /No space left|audit cannot|File upload/},
  async (page, context) => {
    await open(page, 'backup.php');
    const {cookie, token} = await session(page, context);
    fromLan('mount', '-t', 'tmpfs', '-o', 'size=4k,mode=1777', 'tmpfs', '/tmp');
    try {
      const answer = await send(cookie, {change: 'upload', token}, `${head}# ${'x'.repeat(400)}\n${`# ${'y'.repeat(90)}\n`.repeat(200)}`);
      assert.match(await answer.text(), /did not arrive whole/);
    } finally {
      fromLan('umount', '-l', '/tmp');
    }
    const dat = `${applianceFolder}/HTTPService/dat`;
    await choose(page, `${head}[dns]\nprimary = 10.20.0.31\nsecondary =\n`);
    fs.mkdirSync('/run/full.disk', {recursive: true});
    fromLan('mount', '-t', 'tmpfs', '-o', 'size=1m', 'tmpfs', '/run/full.disk');
    fromLan('cp', '-a', dat, '/run/full.disk/dat');
    // An entry of the audit needs a page of its own then.
    fs.appendFileSync('/run/full.disk/dat/audit', '#'.repeat(4096 - fs.statSync('/run/full.disk/dat/audit').size % 4096 - 1) + '\n');
    fromLan('sh', '-c', 'cat /dev/zero >/run/full.disk/rest 2>/dev/null || true');
    fromLan('mount', '--bind', '/run/full.disk/dat', dat);
    try {
      await page.check('#part-dns');
      await press(page, 'Apply');
      assert.deepEqual(await results(page), ['DNS', 'Applied.']);
      assert.equal(dns().trim(), '10.20.0.31');
      assert.match(await messages(page), /could not be written into the audit/);
    } finally {
      fromLan('umount', '-l', dat);
      fromLan('umount', '-l', '/run/full.disk');
    }
  });

test('The keyboard alone is enough for a file', {user: 'admin'}, async (page) => {
  php('class Dns { var $dnsPrimary = "10.20.0.1"; var $dnsSecondary = ""; } set_network_dns($session, new Dns());');
  await choose(page, `${head}[dns]\nprimary = 10.20.0.3\nsecondary =\n`);
  const to = async (selector) => {
    for (let i = 0; i < 60; i += 1) {
      if (await page.evaluate((wanted) => document.activeElement.matches(wanted), selector)) return;
      await page.keyboard.press('Tab');
    }
    throw new Error(`no way to ${selector}`);
  };
  await to('#part-dns');
  await page.keyboard.press('Space');
  await to('main button.primary');
  const navigated = page.waitForNavigation();
  await page.keyboard.press('Enter');
  await navigated;
  assert.equal(dns().trim(), '10.20.0.3');
});

test('HTTPS of a file is a change on trial of its own', {}, async (page) => {
  await signIn(page);
  await choose(page, `${head}[web]\nhttps = on\n[ipv6]\nenabled = ${php('echo is_ipv6_enabled() ? "off" : "on";')}\n`);
  assert.deepEqual(await page.locator('form.part h3').allInnerTexts(), ['IPv6 switch', 'Web security']);
  await press(page, 'Apply Web security');
  assert.match(await page.innerText('main'), /restart/);
  await reaches('trial');
  assert.equal(trial('kind'), 'ssl');
  await page.goto('about:blank');
  await keepWhatIs();
  await until(() => fetch(base(), {redirect: 'manual'}).then((answer) => answer.status === 200).catch(() => false), 'the pages by HTTP');
});

for (const [name, viewport, colorScheme] of [['wide', {width: 1280, height: 900}, 'light'], ['narrow', {width: 360, height: 740}, 'dark']]) {
  test(`A file is compared accessibly, and fits: ${name}`, {user: 'admin', viewport, colorScheme}, async (page) => {
    const judge = async (what) => {
      assert.deepEqual(await accessibilityFaults(page), [], what);
      assert.ok(await page.evaluate(() => document.documentElement.scrollWidth - innerWidth) <= 0, `${what} fits`);
    };
    php('class Dns { var $dnsPrimary = "10.20.0.1"; var $dnsSecondary = ""; } set_network_dns($session, new Dns());');
    await open(page, 'backup.php');
    await judge('page');
    await choose(page, `${head}host = library-7\ntaken = 2026-11-22 04:00:00 UTC\n[name]\nhost = ${'a'.repeat(60)}\n[dns]\nprimary = 2001:db8:1234:5678:9abc:def0:1234:5678\nsecondary =\n[traps]\n`
      + 'receiver = udp 2001:db8:1234:5678:9abc:def0:1234:5678 162\n[ipv4]\nmode = static\naddress = 10.20.0.9\nnetmask = 255.255.255.0\n'
      + 'gateway = 10.20.0.1\n[web]\nhttps = on\n');
    await judge('compare');
    await page.check('#part-dns');
    await press(page, 'Apply');
    await judge('results');
    await choose(page, `${head}[dns]\nprimary = x\nsecondary = y\n[nothing]\n`);
    await judge('refused');
  });
}
