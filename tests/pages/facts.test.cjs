// What is so now: shown beside what is set, said when the two differ, and unknown when the device does not tell.
'use strict';

const assert = require('node:assert/strict');
const fs = require('node:fs');
const {addresses, applianceFolder, ask, fromLan, inAppliance, ipv4Address, php, traceLog, until, withScript} = require('./appliance.cjs');
const {accessibilityFaults, base, beside, certificate, errorOf, markupFaults, messages, open, press, served, signIn, test} = require('./browser.cjs');

const scripts = `${applianceFolder}/AppManager/bin`;
const script = `${scripts}/deviceFacts.sh`;
const web = `${applianceFolder}/HTTPService/lighttpd/conf`;
const database = `${applianceFolder}/CoreService/dat/management.db`;

function alarms(page) {
  return page.locator('#alarms .message').allInnerTexts();
}

function stateOf(page, tile) {
  return page.innerText(`[aria-labelledby=tile-${tile}] > p >> .state`);
}

async function secondsToOpen(page, name) {
  const began = Date.now();
  await open(page, name);
  return (Date.now() - began) / 1000;
}

// With another address of the appliance to come by, as the one it has goes away.
async function byAnotherAddress(page, work) {
  inAppliance('ip', 'address', 'add', '10.20.0.88/24', 'dev', 'eth0');
  try {
    await page.goto('http://10.20.0.88/');
    await page.fill('#user', 'admin');
    await page.fill('#password', require('./appliance.cjs').accounts.get('admin'));
    await press(page, 'Sign in');
    await work();
  } finally {
    inAppliance('ip', 'address', 'delete', '10.20.0.88/24', 'dev', 'eth0');
  }
}

// What the LAN's DHCP server is to make of the appliance: the last part of a line of dnsmasq's dhcp-host.
let orders = 0;
async function dhcpServerSays(text) {
  orders += 1;
  const [device] = JSON.parse(inAppliance('ip', '-json', 'link', 'show', 'eth0'));
  fs.writeFileSync(`/run/appliance/lan.hosts/${orders}.facts`, `${device.address}${text}\n`);
  await until(() => fs.readFileSync('/run/appliance/lan.log', 'utf8').includes(`/${orders}.facts`), 'the DHCP server to know it');
}

test('What works is green, with nothing to be done', {user: 'admin'}, async (page) => {
  await open(page, 'index.php');
  assert.deepEqual(await alarms(page), []);
  assert.equal(await stateOf(page, 'ipv4'), 'In use');
  assert.equal(await stateOf(page, 'port'), 'Link up');
  assert.equal(await stateOf(page, 'snmp'), 'The agent answers');
  assert.equal(await stateOf(page, 'dns'), 'No servers set');
  assert.match(await beside(page, 'Lease'), /^From 10\.20\.0\.1, until \d{4}-\d\d-\d\d \d\d:\d\d:\d\d UTC$/);
  assert.match(await beside(page, 'In use now'), /^10\.20\.0\.1 from DHCP$/);
  assert.match(await page.innerText('main'), /The appliance's clock: \d{4}-\d\d-\d\d \d\d:\d\d UTC/);
  const green = await page.locator('main .state.good').allInnerTexts();
  assert.deepEqual(green, ['In use', 'Link up', 'Link up', 'The agent answers'], 'only what works');
});

test('A dead SNMP agent is seen at once, and saving its page starts it', {user: 'admin'}, async (page) => {
  inAppliance('kill', '-KILL', fs.readFileSync('/run/appmanager/snmpd.pid', 'utf8').trim());
  await open(page, 'index.php');
  const [said] = await alarms(page);
  assert.match(said, /^The SNMP agent does not answer\.\n+.*Save the settings of the agent again/);
  assert.equal(await stateOf(page, 'snmp'), 'The agent does not answer');
  assert.deepEqual(await accessibilityFaults(page), []);
  await open(page, 'traps.php');
  assert.match(await page.innerText('[aria-labelledby=now]'), /^Now\s+The agent does not answer\s[^]*no traps are sent/);
  await open(page, 'index.php');
  await page.click('#alarms a');
  assert.equal(await page.innerText('h1'), 'SNMP agent');
  assert.match(await page.innerText('[aria-labelledby=now]'), /The agent does not answer/);
  await press(page, 'Save');
  assert.equal(await messages(page), 'The SNMP agent is set and has restarted.');
  assert.match(await page.innerText('[aria-labelledby=now]'), /The agent answers/);
  await open(page, 'index.php');
  assert.deepEqual(await alarms(page), []);
});

test('An agent that is there and does not answer is no living one', {user: 'admin'}, async (page) => {
  const agent = fs.readFileSync('/run/appmanager/snmpd.pid', 'utf8').trim();
  inAppliance('kill', '-STOP', agent);
  try {
    assert.ok(await secondsToOpen(page, 'index.php') < 3);
    assert.equal(await stateOf(page, 'snmp'), 'The agent does not answer');
  } finally {
    inAppliance('kill', '-CONT', agent);
  }
});

test('A link that is down', {user: 'admin'}, async (page) => {
  inAppliance('ip', 'link', 'set', 'eth2', 'down');
  try {
    await open(page, 'index.php');
    const said = await alarms(page);
    assert.equal(said.length, 1);
    assert.match(said[0], /^Ethernet port 2 \(eth2\) has no link\.\n+Check the cable/);
    assert.equal(await stateOf(page, 'port'), 'No link');
    assert.equal(await page.locator('main .bad').count(), 0, 'nothing may be plugged into it');
    await open(page, 'port.php');
    assert.equal(await beside(page, 'Link'), 'No link');
    assert.equal(await beside(page, 'Setting'), 'Autonegotiation');
  } finally {
    inAppliance('ip', 'link', 'set', 'eth2', 'up');
  }
  await until(() => inAppliance('ip', 'link', 'show', 'eth2').includes('LOWER_UP'), 'the link');
  await open(page, 'index.php');
  assert.deepEqual(await alarms(page), []);
});

test('A DHCP client without a lease', {}, async (page) => {
  await byAnotherAddress(page, async () => {
    await dhcpServerSays(',ignore');
    try {
      inAppliance('sh', `${scripts}/ipv4Manager.sh`, '-c', '-d', 'on');
      inAppliance('ip', 'address', 'add', '10.20.0.88/24', 'dev', 'eth0');
      await open(page, 'index.php');
      const said = await alarms(page);
      assert.equal(said.length, 1, said.join());
      assert.match(said[0], /^No DHCP server has given the appliance an IPv4 address\.\n+Check that a DHCP server is there/);
      assert.equal(await stateOf(page, 'ipv4'), 'No DHCP server has answered');
      await open(page, 'ipv4.php');
      assert.match(await page.innerText('[aria-labelledby=now]'), /No DHCP server has answered/);
      assert.doesNotMatch(await page.innerText('[aria-labelledby=now]'), /0\.0\.0\.0/);
    } finally {
      await dhcpServerSays('');
    }
    await until(() => ask('ipv4Manager.sh', '-d', 'status').startsWith('10.20.0.1'), 'a lease');
    inAppliance('ip', 'address', 'replace', '10.20.0.88/24', 'dev', 'eth0');
    await open(page, 'index.php');
    assert.deepEqual(await alarms(page), []);
  });
});

test('A static address that is not on the interface', {}, async (page) => {
  inAppliance('sh', `${scripts}/ipv4Manager.sh`, '-c', '-s', '10.20.0.77?255.255.255.0?10.20.0.1');
  try {
    await byAnotherAddress(page, async () => {
      await open(page, 'index.php');
      assert.deepEqual(await alarms(page), []);
      assert.equal(await stateOf(page, 'ipv4'), 'In use');
      inAppliance('ip', 'address', 'delete', '10.20.0.77/24', 'dev', 'eth0');
      inAppliance('ip', 'address', 'replace', '10.20.0.88/24', 'dev', 'eth0'); // the second of a network goes with the first
      await open(page, 'index.php');
      const said = await alarms(page);
      assert.equal(said.length, 1);
      assert.match(said[0], /^The static address 10\.20\.0\.77 is not on the first Ethernet port\.\n+.*Restart the appliance/);
      assert.equal(await stateOf(page, 'ipv4'), 'The static address is not in use');
    });
  } finally {
    inAppliance('sh', `${scripts}/ipv4Manager.sh`, '-c', '-d', 'on');
  }
});

test('A web server in another mode than is stored', {user: 'admin'}, async (page) => {
  const mode = fs.readFileSync(`${web}/mode.conf`, 'utf8');
  fs.writeFileSync(`${web}/mode.conf`, `${mode}ssl.pemfile = "x"\n`);
  try {
    await open(page, 'index.php');
    assert.match((await alarms(page))[0], /^The web server is configured for HTTPS, but HTTP is set\.\n+Choose the other mode/);
    assert.equal(await stateOf(page, 'security'), 'Not in the mode that is set');
  } finally {
    fs.writeFileSync(`${web}/mode.conf`, mode);
  }
  fromLan('sqlite3', database, 'UPDATE settings SET ssl_enabled = 1');
  try {
    await open(page, 'security.php');
    assert.match(await page.innerText('[aria-labelledby=now]'), /The web server is serving HTTP, but HTTPS is set\./);
    assert.equal(await beside(page, 'Set'), 'HTTPS');
    assert.equal(await beside(page, 'Served now'), 'HTTP');
  } finally {
    fromLan('sqlite3', database, 'UPDATE settings SET ssl_enabled = 0');
  }
  await open(page, 'index.php');
  assert.deepEqual(await alarms(page), []);
});

test('The certificate is shown as it is, and when it has expired', {}, async (page) => {
  php('set_ssl_settings($session, true);');
  await served('https');
  const original = fs.readFileSync(`${web}/certificate.pem`);
  try {
    await signIn(page, 'admin', 'security.php', 'https');
    const {fingerprint256, valid_to: end} = await certificate();
    assert.equal(await beside(page, 'SHA-256 fingerprint'), fingerprint256);
    assert.equal(await beside(page, 'Valid until'), `${new Date(end).toISOString().slice(0, 16).replace('T', ' ')} UTC`);
    assert.match(await beside(page, 'Certificate for'), new RegExp(`library, .*${ipv4Address().replaceAll('.', '\\.')}`));
    await open(page, 'index.php');
    assert.equal(await stateOf(page, 'security'), 'These pages are encrypted');
    assert.deepEqual(await alarms(page), []);
    fromLan('openssl', 'req', '-new', '-key', `${web}/key.pem`, '-subj', '/CN=library', '-out', '/tmp/expired.request');
    // Of days that are over not every version makes one, of dates it does.
    fs.writeFileSync('/tmp/expired.index', '');
    fs.writeFileSync('/tmp/expired.cnf', '[ca]\ndefault_ca = own\n[own]\ndatabase = /tmp/expired.index\nnew_certs_dir = /tmp\nrand_serial = yes\n' +
      'default_md = sha256\npolicy = any\n[any]\ncommonName = supplied\n');
    fromLan('openssl', 'ca', '-batch', '-selfsign', '-notext', '-config', '/tmp/expired.cnf', '-keyfile', `${web}/key.pem`,
      '-in', '/tmp/expired.request', '-startdate', '20200101000000Z', '-enddate', '20200102000000Z', '-out', `${web}/certificate.pem`);
    await open(page, 'index.php');
    assert.match((await alarms(page))[0], /^The certificate of these pages has expired, on .* UTC\.\n+Switch HTTPS off and on again/);
    assert.equal(await stateOf(page, 'security'), 'The certificate has expired');
  } finally {
    fs.writeFileSync(`${web}/certificate.pem`, original);
    php('set_ssl_settings($session, false);');
    await served('http');
  }
});

test('A device without the script shows its settings, and says nothing about now', {user: 'admin'}, async (page) => {
  fs.renameSync(script, `${script}.away`);
  try {
    for (const name of ['index.php', 'ipv4.php', 'ipv6.php', 'dns.php', 'port.php', 'security.php', 'snmp.php', 'traps.php']) {
      await open(page, name);
      assert.equal(await messages(page), '', name);
      assert.doesNotMatch(await page.innerText('main'), /Unknown|Link up|The agent answers/, name);
      assert.deepEqual(await page.locator('main .state.good').allInnerTexts(), [], `${name}: nobody has said that it works`);
    }
    await open(page, 'index.php');
    assert.equal(await stateOf(page, 'ipv4'), 'Set');
    assert.deepEqual(await alarms(page), []);
  } finally {
    fs.renameSync(`${script}.away`, script);
  }
});

const useless = {'says that the link is up, and hangs': 'echo "eth0.link up"; exec sleep 1000', 'hangs': 'sleep 1000', 'hangs with half a line': 'printf "eth0.li"; exec sleep 1000', 'prints rubbish': 'head -c 300000 /dev/urandom',
  'prints what is none of the facts': 'echo "eth0.link <b>up</b>"; echo "ipv4.address none"; echo snmp.answers; echo "clock 1e9"',
  'prints nothing': ':', 'ends with 1': 'exit 1', 'never stops printing': 'yes "eth2.link up and down"'};
for (const [what, text] of Object.entries(useless)) {
  test(`A script that ${what} makes unknown what it would say, and nothing else`, {user: 'admin'}, async (page) => {
    await withScript('deviceFacts.sh', text, async () => {
      assert.ok(await secondsToOpen(page, 'index.php') < 12);
      assert.equal(await messages(page), '');
      assert.deepEqual(await alarms(page), []);
      for (const tile of ['ipv4', 'port', 'snmp']) assert.equal(await stateOf(page, tile), 'Unknown', tile);
      assert.equal(await page.innerText('.value >> nth=0'), ipv4Address());
      assert.equal(await beside(page, 'In use now'), 'Unknown');
      assert.equal(await beside(page, 'Obtained by').catch(() => 'DHCP'), 'DHCP');
      assert.equal(await beside(page, 'Autonegotiation'), 'On');
      for (const name of ['ipv4.php', 'ipv6.php', 'dns.php', 'port.php', 'security.php', 'snmp.php', 'traps.php']) {
        assert.ok(await secondsToOpen(page, name) < 12, `${name} is late`);
        assert.equal(await messages(page), '', name);
        assert.match(await page.innerText('main'), /Unknown|HTTP/, name);
      }
    });
  });
}

// What the script of a device is asked => the tiles of the Overview that do not know then.
const hanging = {'ipv4Manager.sh -g host': ['Host name'], 'ipv4Manager.sh -g port': ['Autonegotiation', 'Duplex'],
  'ipv6Manager.sh -g dns': ['Primary', 'Secondary'], 'ipv4Manager.sh -d status': ['Netmask', 'Gateway']};
for (const [question, terms] of Object.entries(hanging)) {
  const [name, ...words] = question.split(' ');
  test(`While "${question}" hangs the Overview lacks that alone`, {user: 'admin'}, async (page, context) => {
    await withScript(name, `case "$*" in "${words.join(' ')}") sleep 987 & wait ;; *) exec sh "$ORIGINAL" "$@" ;; esac`, async () => {
      const loaded = secondsToOpen(page, 'index.php');
      await new Promise((resolve) => setTimeout(resolve, 800));
      const other = await context.newPage();
      await other.goto(base());
      const began = Date.now();
      await other.goto(`${base()}traps.php`);
      assert.ok(Date.now() - began < 2000, 'other requests of the session go on');
      assert.equal(await other.innerText('.side .brand'), 'library');
      await other.close();
      const seconds = await loaded;
      assert.ok(seconds > 2.5 && seconds < 12, `${seconds} seconds`);
      for (const term of terms) assert.match(await beside(page, term), /^Unknown/, term);
      const all = ['Trap receivers', 'HTTPS', 'Link now', 'Versions', 'Autonegotiation', 'Host name', 'Primary', 'Netmask', 'Gateway'];
      for (const term of all.filter((one) => !terms.includes(one))) assert.doesNotMatch(await beside(page, term), /Unknown/, term);
      assert.equal(await page.innerText('.value >> nth=0'), ipv4Address(), 'the address that the interface has');
      assert.match(await messages(page), /^Could not get [^]*Code 0x/);
      assert.deepEqual(await accessibilityFaults(page), []);
    });
    await until(() => fromLan('sh', '-c', 'pgrep -fc "^sleep 987$" || true') === '0', 'the end of what hung');
    await open(page, 'index.php');
    assert.equal(await messages(page), '');
  });
}

// In one process: a change that the module has left to a thread of it, whose script takes longer than a page waits.
test('A change that goes on in the same process is not ended with what hangs', {}, async () => {
  const changing = 'case $1 in -c) sleep 5; : >/run/change.done ;; *) exec sh "$ORIGINAL" "$@" ;; esac';
  await withScript('ipv4Manager.sh', changing, () => withScript('ipv6Manager.sh', 'sleep 986', async () => {
    const seconds = inAppliance('php', '-r', `require "${applianceFolder}/HTTPService/lighttpd/shared/page.php"; $session = new Session();
      set_network_configuration_ipv4($session, ipv4_settings(get_network_hostname(), array("dhcp" => true, "ip" => "", "netmask" => "", "gateway" => "")));
      usleep(3500000); $began = seconds_now(); ask_device(); get_network_dns($session); end_asking(); echo seconds_now() - $began; usleep(4000000);`);
    assert.ok(seconds > 2.5 && seconds < 12, `${seconds} seconds`);
    assert.ok(fs.existsSync('/run/change.done'), 'the change came to its end');
    assert.equal(fromLan('sh', '-c', 'pgrep -fc "^sleep 986$" || true'), '0');
  }));
});

test('A page whose script hangs is there after three seconds, too', {user: 'admin'}, async (page) => {
  await withScript('ipv6Manager.sh', 'sleep 1000', async () => {
    for (const name of ['dns.php', 'ipv6.php']) {
      const seconds = await secondsToOpen(page, name);
      assert.ok(seconds < 7, `${name}: ${seconds} seconds`);
      assert.match(await page.innerText('[aria-labelledby=now]'), /Unknown/, name);
      assert.equal(await page.locator('#messages .message.bad').count(), 1, name);
    }
    assert.ok(await secondsToOpen(page, 'snmp.php') < 2);
  });
});

// The interpreter has the database open, whatever becomes of its file.
async function withoutTables(work) {
  const rename = (from, to) => fromLan('sqlite3', database, ['settings', 'snmp_versions', 'trap_registrations']
    .map((table) => `ALTER TABLE ${from(table)} RENAME TO ${to(table)};`).join(' '));
  rename((table) => table, (table) => `${table}_away`);
  try {
    await work();
  } finally {
    rename((table) => `${table}_away`, (table) => table);
  }
}

test('What the management services do not say of the agent is unknown, never 0 or none', {user: 'admin'}, async (page) => {
  await withoutTables(async () => {
    await open(page, 'snmp.php');
    assert.equal(await beside(page, 'Versions set'), 'Unknown');
    assert.doesNotMatch(await page.innerText('main'), /port 0|Always on/);
    for (const mark of ['#version1', '#trap1', '#trap2', '#auth_traps_enabled']) {
      assert.ok(!await page.isChecked(mark), mark);
      assert.equal(await hintOf(page, mark), notRead, mark);
    }
    await open(page, 'index.php');
    for (const term of ['HTTPS', 'Versions', 'Trap receivers']) assert.equal(await beside(page, term), 'Unknown', term);
    await open(page, 'security.php');
    assert.equal(await beside(page, 'Set'), 'Unknown');
    assert.equal(await page.locator('[name=https]:checked').count(), 0);
    await page.check('#https-0');
    await press(page, 'Save');
    assert.match(await errorOf(page, 'https'), /^What is set now cannot be read, so that it could not be put back/);
    await open(page, 'traps.php');
    assert.match(await page.innerText('[aria-labelledby=list]'), /Receivers:\s+Unknown/);
    await page.fill('#ip', '10.20.0.1');
    await press(page, 'Add');
    assert.match(await errorOf(page, 'ip'), /cannot be read/);
    await open(page, 'backup.php');
    await press(page, 'Download');
    assert.match(await page.innerText('main'), /No file was made: [^.]*Web security[^.]* cannot be read/);
    const [file] = await Promise.all([page.waitForEvent('download'), page.click('button:text-is("Download without it")')]);
    const text = fs.readFileSync(await file.path(), 'utf8');
    assert.doesNotMatch(text, /^\[(web|snmp|traps)\]/m);
    assert.match(text, /^\[dns\]/m);
  });
  await open(page, 'index.php');
  assert.equal(await beside(page, 'HTTPS'), 'Off');
  assert.equal(await beside(page, 'Trap receivers'), '0');
});

const notRead = 'What is set now cannot be read.';

function hintOf(page, field) {
  return page.innerText(`${field}-hint`).then((text) => text.slice(0, notRead.length));
}

test('No setting that could not be read is shown in the place of a form', {user: 'monitor'}, async (page) => {
  const shown = () => page.locator('.shown').evaluateAll((all) => Object.fromEntries(all.map((one) => [...one.children].slice(0, 2)
    .map((part) => part.innerText.trim()))));
  await withScript('ipv4Manager.sh', 'exit 1', () => withScript('ipv6Manager.sh', 'exit 1', async () => {
    await open(page, 'ipv4.php');
    assert.deepEqual(await shown(), {Name: 'Unknown'});
    await open(page, 'ipv6.php');
    assert.deepEqual(await shown(), {'Use IPv6': 'Off', 'Router advertisements': 'Unknown', DHCP: 'Off',
      'Use a static address': 'Unknown', Address: 'Unknown', 'Prefix length': 'Unknown', Gateway: 'Unknown'});
  }));
  await withoutTables(async () => {
    await open(page, 'snmp.php');
    assert.deepEqual([...new Set(Object.values(await shown()))], ['Unknown']);
  });
});

test('A form whose settings cannot be read has no choice, and never says that nothing was changed', {user: 'admin'}, async (page) => {
  php('$s = get_network_dns($session); $s->dnsPrimary = "10.20.0.9"; set_network_dns($session, $s);');
  const unreadable = 'case $1 in -g) exit 1 ;; *) exec sh "$ORIGINAL" "$@" ;; esac';
  await open(page, 'dns.php'); // the form shows what was set
  const field = await page.inputValue('#dnsPrimary');
  assert.equal(field, '10.20.0.9');
  await withScript('ipv6Manager.sh', unreadable, async () => {
    await page.fill('#dnsPrimary', '');
    await press(page, 'Save');
    assert.match(await messages(page), /^The DNS servers are removed\./);
    assert.equal(await hintOf(page, '#dnsPrimary'), notRead);
    await press(page, 'Save');
    assert.doesNotMatch(await messages(page), /nothing was changed/);
  });
  assert.equal(ask('ipv6Manager.sh', '-g', 'dns'), 'disabled');
  // Read again, nothing has changed since it was opened.
  await page.fill('#dnsPrimary', '10.20.0.9');
  await press(page, 'Save');
  assert.equal(await messages(page), 'The DNS servers are set.');
  await page.fill('#dnsPrimary', '');
  await press(page, 'Save');
  await withScript('ipv6Manager.sh', 'exit 1', async () => {
    await open(page, 'ipv6.php');
    for (const mark of ['#stateless', '#static']) assert.equal(await hintOf(page, mark), notRead, mark);
    await press(page, 'Apply');
    assert.match(await errorOf(page, 'enabled'), /^What is set now cannot be read, so that it could not be put back/);
  });
  await withScript('ipv4Manager.sh', 'exit 1', async () => {
    await open(page, 'ipv4.php');
    assert.equal(await page.locator('[name=mode]:checked').count(), 0);
    assert.equal(await hintOf(page, '#mode'), notRead);
    await open(page, 'port.php');
    assert.equal(await hintOf(page, '#auto'), notRead);
    for (const name of ['ipv4.php', 'port.php']) {
      await open(page, name);
      assert.deepEqual([...await accessibilityFaults(page), ...await markupFaults(page)], [], name);
    }
  });
  await withScript('ipv4Manager.sh', 'case "$*" in "-g host") exec sh "$ORIGINAL" "$@" ;; *) exit 1 ;; esac', async () => {
    await open(page, 'ipv4.php');
    await page.check('#mode-dhcp');
    await press(page, 'Apply');
    assert.match(await errorOf(page, 'mode-dhcp'), /^What is set now cannot be read, so that it could not be put back/);
  });
});

test('While all scripts of the network hang, no page takes longer than three seconds and some', {user: 'admin'}, async (page) => {
  await withScript('ipv4Manager.sh', 'exec sleep 985', () => withScript('ipv6Manager.sh', 'exec sleep 985', async () => {
    const overview = await secondsToOpen(page, 'index.php');
    assert.ok(overview < 8, `${overview} seconds`);
    for (const term of ['Host name', 'Netmask', 'Primary', 'Autonegotiation']) assert.equal(await beside(page, term), 'Unknown', term);
    await open(page, 'backup.php');
    const began = Date.now();
    await press(page, 'Download');
    const download = (Date.now() - began) / 1000;
    assert.ok(download < 12, `${download} seconds`);
    assert.match(await page.innerText('main'), /No file was made: Host name, .* cannot be read/);
  }));
  assert.equal(fromLan('sh', '-c', 'pgrep -fc "^sleep 985$" || true'), '0');
});

test('What could not be read is unknown, in one message with the codes folded', {user: 'admin'}, async (page) => {
  await withScript('ipv4Manager.sh', 'exit 1', async () => {
    await open(page, 'index.php');
    for (const term of ['Host name', 'Netmask', 'Gateway', 'Autonegotiation', 'Speed', 'Duplex']) assert.equal(await beside(page, term), 'Unknown', term);
    assert.equal(await page.locator('#messages .message').count(), 1);
    const said = () => page.innerText('#messages');
    assert.match(await said(), /^Not everything could be read\n/);
    assert.doesNotMatch(await said(), /Code 0x/);
    await page.click('#messages summary');
    const codes = (await said()).match(/Code 0x[0-9A-F]{8}, reported at \S+:\d+/g);
    assert.ok(codes.length >= 3, 'each with its code');
    assert.deepEqual(await accessibilityFaults(page), []);
    await open(page, 'port.php');
    assert.equal(await beside(page, 'Setting'), 'Unknown');
    for (const mark of ['#auto', '#speed-100', '#speed-10', '#duplex-1', '#duplex-0']) assert.ok(!await page.isChecked(mark), mark);
    await open(page, 'ipv4.php');
    assert.equal(await beside(page, 'Netmask'), 'Unknown');
    assert.equal(await beside(page, 'Comes from'), 'Unknown');
    assert.equal(await page.innerText('.side .brand'), 'library', 'the frame asks no script');
  });
  await withScript('ipv6Manager.sh', 'exit 1', async () => {
    await open(page, 'dns.php');
    assert.equal(await beside(page, 'Set here'), 'Unknown');
    await open(page, 'ipv6.php');
    for (const term of ['Router advertisements', 'Static address']) assert.equal(await beside(page, term), 'Unknown', term);
    assert.equal(await page.locator('#messages .message').count(), 1);
    await open(page, 'index.php');
    for (const term of ['Primary', 'Secondary']) assert.equal(await beside(page, term), 'Unknown', term);
  });
});

test('DNS: servers of a lease are in use until some are set', {user: 'admin'}, async (page) => {
  await open(page, 'dns.php');
  assert.equal(await beside(page, 'In use'), '10.20.0.1 from DHCP');
  assert.equal(await beside(page, 'Set here'), 'None');
  await page.fill('#dnsPrimary', '10.20.0.9');
  await press(page, 'Save');
  assert.equal(await beside(page, 'In use'), '10.20.0.9 set here');
  await page.fill('#dnsPrimary', '');
  await press(page, 'Save');
  assert.equal(await beside(page, 'In use'), '10.20.0.1 from DHCP');
});

test('IPv6: addresses appear on the open page, each with its source, and fill no trace log', {user: 'admin'}, async (page) => {
  php('set_ipv6_enabled($session, true);');
  inAppliance('sh', `${scripts}/ipv6Manager.sh`, '-c', '-s', '2001:db8:20::7/64?fe80::1');
  try {
    await open(page, 'ipv6.php');
    await page.evaluate(() => { window.same = true; });
    let logged = traceLog().length;
    await page.waitForSelector('#addresses li:has-text("from router advertisements")', {timeout: 60000});
    await page.waitForSelector('#addresses li:has-text("2001:db8:20::7 static")', {timeout: 60000});
    await page.waitForSelector('#addresses li:has-text("link-local")');
    assert.equal(traceLog().slice(logged), '');
    const overview = await page.context().newPage();
    await overview.setViewportSize({width: 390, height: 800});
    await overview.goto(base());
    const shown = await overview.innerText('[aria-labelledby=tile-ipv6]');
    assert.match(shown, /2001:db8:20::7 static\n/);
    assert.match(shown, /^2001:db8:20:[0-9a-f:]+ from router advertisements$/m);
    assert.ok(await overview.evaluate(() => document.documentElement.scrollWidth <= innerWidth), 'on a phone, too');
    await overview.close();
    logged = traceLog().length;
    inAppliance('sh', `${scripts}/ipv6Manager.sh`, '-r');
    await page.waitForSelector('#addresses:not(:has-text("2001:db8:20::7 static"))', {timeout: 60000});
    assert.ok(await page.evaluate(() => window.same), 'it was not loaded again');
    assert.equal(traceLog().slice(logged), '');
  } finally {
    inAppliance('sh', `${scripts}/ipv6Manager.sh`, '-r');
    php('set_ipv6_enabled($session, false);');
    await until(() => addresses('inet6').length === 0, 'the addresses to go');
  }
});

for (const javaScriptEnabled of [true, false]) {
  test(`Port: speed and duplex mode are inactive under autonegotiation, ${javaScriptEnabled ? 'with' : 'without'} scripts`,
    {javaScriptEnabled}, async (page) => {
      await signIn(page, 'admin', 'port.php');
      const active = () => page.evaluate(() => {
        const field = document.getElementById('speed-10');
        return !field.matches(':disabled') && getComputedStyle(field.closest('fieldset.field')).pointerEvents !== 'none';
      });
      assert.equal(await active(), false);
      assert.match(await page.innerText('main'), /Not used while autonegotiation is on/);
      await page.uncheck('#auto');
      assert.equal(await active(), true);
      await page.check('#speed-10');
      await page.check('#duplex-0');
      await press(page, 'Save');
      assert.equal(ask('ipv4Manager.sh', '-g', 'port'), 'off?10?half');
      assert.equal(await beside(page, 'Setting'), '10 Mbit/s, half duplex');
      assert.match(await beside(page, 'Link'), /^Link up/);
      await page.check('#auto');
      assert.equal(await active(), false);
      await press(page, 'Save');
      assert.equal(ask('ipv4Manager.sh', '-g', 'port'), 'on?100?full');
    });
}
