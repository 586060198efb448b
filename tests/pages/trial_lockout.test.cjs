// Changes on trial: nobody stays locked out when the way back is disturbed, and nobody but the maker gets the key.
'use strict';

const assert = require('node:assert/strict');
const fs = require('node:fs');
const {addresses, applianceFolder, asPages, ask, fromLan, inAppliance, ipv4Address, php, until, web, withScript} = require('./appliance.cjs');
const {enterPassword, press, served, signIn, test} = require('./browser.cjs');
const {answersAt, apply, audit, beginWatchedModes, Client, fillStatic, isUndone, keepWhatIs, pages, passes, reaches, record, setStatic,
  shift, trial, withOtherDevice} = require('./on_trial.cjs');

const dat = `${applianceFolder}/HTTPService/dat`;
const bin = `${applianceFolder}/AppManager/bin`;
const static4 = {change: 'addressing', mode: 'static', ip: '10.20.0.8', netmask: '255.255.255.0', gateway: '10.20.0.1', trial: '60', reviewed: 'yes'};

const advertisements = () => ask('ipv6Manager.sh', '-l');

// With this in the place of a file.
async function withInPlace(path, other, work) {
  fromLan('mount', '--bind', other, path);
  try {
    await work();
  } finally {
    fromLan('umount', '-l', path);
  }
}

async function admin(ip = ipv4Address()) {
  const client = new Client();
  await client.signIn(ip);
  return client;
}

async function post(client, page, fields, ip = ipv4Address()) {
  const token = await client.hidden(`http://${ip}/${page}`, 'token');
  return client.ask(`http://${ip}/${page}`, {token, ...fields});
}

test('What cannot be written down is undone all the same, and nobody keeps it then; later the record says so', {}, async () => {
  await setStatic('10.20.0.7');
  await keepWhatIs();
  const client = await admin();
  const id = beginWatchedModes();
  assert.equal(advertisements(), '0');
  const token = await client.hidden('http://10.20.0.7/dns.php', 'token');
  fromLan('mount', '--bind', dat, dat);
  try {
    fromLan('mount', '--bind', `${dat}/sessions`, `${dat}/sessions`);
    passes(297);
    fromLan('mount', '-o', 'remount,bind,ro', dat);
    await until(() => advertisements() === '1', 'the settings of before');
    assert.equal(trial('state'), 'trial', 'the record is as it was');
    await client.ask('http://10.20.0.7/applying.php', {token, id, seen: 'trial', change: 'keep'});
    assert.equal(trial('state'), 'trial');
  } finally {
    fromLan('umount', '-l', `${dat}/sessions`);
    fromLan('umount', '-l', dat);
  }
  await reaches('undone');
  assert.equal(trial('why'), 'time');
  assert.equal(advertisements(), '1');
});

test('So it is at a start, which the record follows at the next one', {}, async () => {
  const id = beginWatchedModes();
  // Of the watcher the outer one first, which would start the inner one again.
  for (const inside of ['^sh -c ', '^php -r ']) {
    for (const watcher of fromLan('pgrep', '-f', `${inside}.*watch_trial`).split('\n')) process.kill(Number(watcher), 'SIGKILL');
  }
  fromLan('mount', '--bind', dat, dat);
  fromLan('mount', '-o', 'remount,bind,ro', dat);
  try {
    ask('trialAtStart.sh');
    assert.equal(advertisements(), '1');
    assert.equal(trial('state'), 'trial');
  } finally {
    fromLan('umount', '-l', dat);
  }
  ask('trialAtStart.sh');
  await reaches('undone');
  assert.equal(trial('id'), id);
});

test('No trial begins without a watcher that says it is there', {}, async () => {
  const client = await admin();
  const refused = async (why) => {
    const {text} = await post(client, 'ipv4.php', static4);
    assert.match(text, /Nothing was changed: the trial cannot be watched over on this appliance/, why);
    assert.equal(trial('state'), 'refused', why);
  };
  await withScript('trialWatch.sh', 'exit 0', () => refused('one that ends'));
  // The interpreter of the command line may lack the module.
  await withScript('trialWatch.sh', `exec php -n -r 'require $argv[1]; watch_trial();' "${web}/shared/page.php"`, () => refused('no module'));
  await withInPlace('/usr/bin/setsid', '/dev/null', () => refused('no program setsid'));
  await new Promise((resolve) => setTimeout(resolve, 4000));
  assert.equal(ipv4Address(), '10.20.0.7');
  // A log that cannot be written is no reason.
  fs.rmSync(`${web}/logs/trial.log`, {force: true});
  fs.mkdirSync(`${web}/logs/trial.log`);
  try {
    beginWatchedModes();
    passes(299);
    await reaches('undone');
    assert.equal(advertisements(), '1');
  } finally {
    fs.rmdirSync(`${web}/logs/trial.log`);
  }
});

const refuses = 'case "$*" in "-L 1") exit 1 ;; *) exec sh "$ORIGINAL" "$@" ;; esac';

test('Undoing that has failed is tried again: by the watcher, and at a start', {}, async () => {
  for (const way of ['watcher', 'start']) {
    await withScript('ipv6Manager.sh', refuses, async () => {
      beginWatchedModes();
      passes(299);
      await until(() => trial('state') === 'undone' && fs.readFileSync(record, 'utf8').includes('"undo_failed";b:1'), 'the failure');
      assert.equal(advertisements(), '0');
    });
    if (way === 'watcher') shift('settled', 61);
    else ask('trialAtStart.sh');
    await until(() => fs.readFileSync(record, 'utf8').includes('"undo_failed";b:0'), `the undoing by the ${way}`);
    await reaches('undone');
    assert.equal(advertisements(), '1');
  }
  assert.equal(audit().filter(([,, what]) => what.endsWith('could not be undone')).length, 2);
});

test('Not when somebody has changed these settings since', {}, async () => {
  await withScript('ipv6Manager.sh', refuses, async () => {
    beginWatchedModes();
    passes(299);
    await until(() => fs.readFileSync(record, 'utf8').includes('"undo_failed";b:1'), 'the failure');
  });
  ask('ipv6Manager.sh', '-c', '-d', 'on');
  ask('trialAtStart.sh');
  shift('settled', 61);
  await until(() => fs.readFileSync(record, 'utf8').includes('"left";s:0:""'), 'the end of it');
  assert.equal(advertisements(), '0');
  ask('ipv6Manager.sh', '-c', '-d', 'off');
  ask('ipv6Manager.sh', '-L', '1');
});

test('A start goes on when undoing hangs, and the record of an older program is undone, too', {}, async () => {
  await withScript('ipv4Manager.sh', 'case "$*" in "-c -s "*) sleep 40 ;; esac; exec sh "$ORIGINAL" "$@"', async () => {
    inAppliance('php', '-r', `${pages} $before = settings_of($session, "ipv4");
      store_trial(array("id" => "0123456789abcdef", "state" => "trial", "kind" => "ipv4", "before" => $before, "seconds" => 60,
        "values" => array("mode" => "Static", "ip" => "10.99.0.7", "netmask" => "255.255.255.0", "gateway" => "10.99.0.1")));`);
    const start = Date.now();
    // Without the pipes, which the device script would hold open.
    inAppliance(...asPages, 'sh', '-c', `php -r 'define("START_SECONDS", 3); require "${web}/shared/page.php"; undo_at_start();' >/dev/null 2>&1 || true`);
    assert.ok(Date.now() - start < 35000, 'it goes on');
    assert.equal(trial('state'), 'undoing');
    // The watcher may be writing the record just now: then it is the real minute that passes.
    shift('undo_began', 61);
  });
  await reaches('undone', 120);
  await answersAt('10.20.0.7');
});

test('A record is on the disk with its name', {}, () => {
  const calls = inAppliance('sh', '-c', `strace -f -e trace=rename,renameat,renameat2,fsync,fdatasync,syncfs,sync \
    php -r '${pages.replace(/'/g, '"')} replace_file("${dat}/test", "text", true);' 2>&1`).split('\n');
  const renamed = calls.findIndex((call) => /rename.*dat\/test"/.test(call));
  assert.ok(renamed > 0 && /fsync/.test(calls.slice(0, renamed).join('\n')), calls.join('\n'));
  assert.match(calls.slice(renamed).join('\n'), /fsync\(|syncfs\(|sync\(/);
  fs.unlinkSync(`${dat}/test`);
});

test('Who passes the page\'s question on to the appliance is not believed', {}, async (page) => {
  php('set_ipv6_enabled($session, true);');
  const [ipv6] = await until(() => addresses('inet6').length > 0 && addresses('inet6'), 'an address');
  const relayed = [];
  const relay = async (address) => {
    const text = await fetch(`http://[${ipv6.split('/')[0]}]${address}`).then((answer) => answer.text()).catch(() => 'nobody');
    relayed.push(text);
    return text;
  };
  await signIn(page);
  await withOtherDevice('10.20.0.9', relay, async (asked) => {
    await fillStatic(page, '10.20.0.9');
    await press(page, 'Apply');
    await press(page, 'Apply');
    await until(() => relayed.length > 2, 'questions');
    assert.ok(page.url().startsWith('http://10.20.0.7/'), page.url());
    assert.deepEqual(relayed.filter((text) => text !== ''), []);
    await page.waitForSelector('[data-when-lost]:visible', {timeout: 60000});
    // Nor when the visitor takes the link.
    await page.locator('[data-when-lost] a').click();
    await until(() => asked.some((address) => address.startsWith('/applying.php')), 'the visit');
    assert.deepEqual(asked.filter((address) => /key|#/.test(address)), []);
  });
  await isUndone();
  php('set_ipv6_enabled($session, false);');
});

test('Under the new address the appliance answers the page\'s own question, says that a change is on trial, and another attempt takes no key',
  {}, async () => {
    const client = await admin();
    await post(client, 'ipv4.php', static4);
    const key = async () => ((await client.ask('http://10.20.0.7/applying.php')).text.match(/data-key="([0-9a-f]*)"/) ?? [])[1];
    const mine = await key();
    assert.match(mine, /^[0-9a-f]{32}$/);
    assert.match((await post(client, 'ipv4.php', {...static4, ip: '10.20.0.9'})).text, /Another change is on trial/);
    await post(client, 'security.php', {change: 'https', https: '1', trial: '60'});
    assert.equal(await key(), mine);
    const {text} = await client.ask('http://10.20.0.7/applying.php');
    const [, number, answer] = text.match(/data-probe="([0-9a-f]{32})" data-answer="([0-9a-f]{40})"/);
    const monitor = new Client();
    await monitor.signIn('10.20.0.7', 'monitor');
    assert.doesNotMatch((await monitor.ask('http://10.20.0.7/applying.php')).text, new RegExp(`${answer}|data-answer`));
    await reaches('trial');
    const said = async (asked) => (await new Client().ask(`http://10.20.0.8/trial.php?probe=${asked}`)).text.trim().split(' ');
    assert.ok((await said(number)).includes(answer));
    assert.deepEqual(await said('0'.repeat(32)), ['']);
    const visitor = new Client();
    assert.match((await visitor.ask('http://10.20.0.8/index.php')).text,
      /New settings are on trial: when you sign in here as admin, they are kept\. \d+ seconds are left\./);
    const maker = new Client();
    await maker.ask('http://10.20.0.8/trial.php', {key: mine});
    assert.match((await maker.ask('http://10.20.0.8/applying.php')).text, /<h1>Kept<\/h1>/);
    assert.doesNotMatch((await visitor.ask('http://10.20.0.8/index.php')).text, /on trial/);
    await setStatic('10.20.0.7');
  });

test('A key in the background before the change has come to its end is not lost', {}, async () => {
  const client = await admin();
  await post(client, 'ipv4.php', {...static4, ip: '10.20.0.7', gateway: '10.20.0.66'});
  const inRecord = () => trial('key');
  const hash = inRecord();
  assert.match(hash, /^[0-9a-f]{40}$/);
  // The key itself is in the session's file.
  const key = fs.readFileSync(`${dat}/sessions/sess_${client.cookies.get('settings')}`, 'utf8').match(/trial_key\|s:32:"([0-9a-f]{32})"/)[1];
  assert.equal(trial('state'), 'applying');
  await new Client().ask('http://10.20.0.7/trial.php?background=1', {key});
  assert.equal(trial('state'), 'applying');
  assert.equal(inRecord(), hash);
  await reaches('trial');
  await new Client().ask('http://10.20.0.7/trial.php?background=1', {key});
  assert.equal(trial('state'), 'kept');
  await setStatic('10.20.0.7');
});

test('What was kept can be undone while nobody has changed it since, and for a day', {}, async () => {
  const client = await admin();
  const offers = async () => /value="undo"/.test((await client.ask('http://10.20.0.7/applying.php')).text);
  const kept = async () => {
    const id = beginWatchedModes();
    await post(client, 'applying.php', {id, seen: 'trial', change: 'keep'});
    assert.equal(trial('state'), 'kept');
    return id;
  };
  const undo = (id) => post(client, 'applying.php', {id, seen: 'kept', change: 'undo'});
  let id = await kept();
  assert.ok(await offers());
  ask('ipv6Manager.sh', '-c', '-d', 'on');
  assert.ok(!await offers(), 'another change since');
  await undo(id);
  assert.equal(trial('state'), 'kept');
  ask('ipv6Manager.sh', '-c', '-d', 'off');
  ask('ipv6Manager.sh', '-L', '1');

  id = await kept();
  shift('settled', 86500);
  assert.ok(!await offers(), 'a day later');
  await undo(id);
  assert.equal(trial('state'), 'kept');
  ask('ipv6Manager.sh', '-L', '1');
});

test('Modes are only stored while IPv6 is off; without any address of IPv6 they are kept over IPv4', {}, async () => {
  const client = await admin();
  const before = trial('id');
  const modes = {change: 'ipv6', stateless: '', dhcp: '', trial: '60'};
  const {location} = await post(client, 'ipv6.php', modes);
  assert.equal(location, 'ipv6.php');
  assert.match((await client.ask('http://10.20.0.7/ipv6.php')).text, /They come into force when IPv6 is switched on/);
  assert.equal(advertisements(), '0');
  assert.equal(trial('id'), before, 'nothing is on trial');
  ask('ipv6Manager.sh', '-L', '1');

  php('set_ipv6_enabled($session, true);');
  await until(() => addresses('inet6').length > 0, 'an address');
  await post(client, 'ipv6.php', modes);
  await reaches('trial');
  await client.ask('http://10.20.0.7/applying.php');
  assert.equal(trial('state'), 'trial', 'an address may still come');
  shift('ended', 11);
  await client.ask('http://10.20.0.7/applying.php');
  assert.equal(trial('state'), 'kept');
  php('set_stateless_enabled($session, true); set_ipv6_enabled($session, false);');
});

test('Without a trial, over IPv6: the answer arrives before the connection goes', {}, async () => {
  php('set_ipv6_enabled($session, true);');
  const [ipv6] = await until(() => addresses('inet6').length > 0 && addresses('inet6'), 'an address');
  const host = `[${ipv6.split('/')[0]}]`;
  const client = await admin(host);
  const {status, location} = await post(client, 'ipv6.php', {change: 'ipv6', enabled: '', trial: '0', seen: 'enabled=On&stateless=On&dhcp=Off&mode=Off'}, host);
  assert.deepEqual([status, location], [303, 'applying.php']);
  await until(() => addresses('inet6').length === 0, 'no address');
  await reaches('kept');
});

test('Without a trial no step says that somebody reached it; what was undone before it was set was not set', {}, () => {
  const said = (fields, outcome) => inAppliance('php', '-r', `require "${web}/shared/page.php";
    $trial = array(${fields}) + blank_trial(); foreach (steps_of($trial, "${outcome}") as $step => $kind) { echo "$step $kind;"; }`);
  assert.equal(said('"state" => "kept", "why" => "no trial"', 'kept'), 'Asked good;Set good;');
  assert.equal(said('"state" => "applying"', 'late'), 'Asked good;Set caution;');
  assert.equal(said('"state" => "undone", "seconds" => 60', 'undone'), 'Asked good;Set off;Undone caution;');
  assert.equal(said('"state" => "undone", "seconds" => 60, "in_force" => true', 'undone'), 'Asked good;Set good;Undone caution;');
  assert.equal(said('"state" => "kept", "seconds" => 60', 'kept'), 'Asked good;Set good;Reached good;Kept good;');
});

test('What cannot be asked of the network is not known: no rights, no program', {}, async () => {
  const asked = (...before) => fromLan('sh', '-c', `nsenter --net=/run/appliance/appliance.net -- ${before.join(' ')} sh ${bin}/probeAddress.sh 10.20.0.66 || echo "status $?"`);
  assert.equal(asked(), 'silent');
  assert.equal(asked('setpriv', '--reuid=65534', '--clear-groups'), 'status 1');
  await withInPlace('/usr/bin/busybox', '/dev/null', () => assert.equal(asked(), 'status 1'));
});

test('Without scripts HTTPS is kept by going there, and no key is in any address', {javaScriptEnabled: false}, async (page) => {
  page.context().setDefaultTimeout(60000); // the key of a certificate is made
  await signIn(page, 'admin', 'security.php');
  await page.check('#https-1');
  await press(page, 'Save');
  assert.doesNotMatch(await page.content(), /key=|[?&#][0-9a-z]*[0-9a-f]{32}/);
  await served('https');
  assert.equal(trial('state'), 'trial');
  await page.click('text=Continue with HTTPS');
  assert.ok(page.url().startsWith('https://10.20.0.7/'), page.url());
  await page.waitForSelector('form[action="signin.php"]');
  assert.equal(trial('state'), 'kept');
  await enterPassword(page);
  await page.goto('https://10.20.0.7/security.php');
  await page.check('#https-0');
  await press(page, 'Save');
  assert.match(await page.innerText('main'), /Then sign in again at\s+http:\/\/10\.20\.0\.7\/\./);
  await served('http');
  await page.goto('http://10.20.0.7/applying.php');
  assert.equal(trial('state'), 'kept');
});

test('From DHCP to a static address: that the name servers go is said before; what was undone can be corrected', {}, async () => {
  ask('ipv4Manager.sh', '-c', '-d', 'on');
  const ip = await until(() => /^10\.20\.0\.1\d\d$/.test(ipv4Address()) && ipv4Address(), 'a lease');
  const client = await admin(ip);
  const review = (await post(client, 'ipv4.php', {...static4, reviewed: '', trial: '180'})).text;
  assert.match(review, /The name servers come from the DHCP server and go with its address/);
  assert.match(review, /on trial for 3 minutes: you see how it goes/);
  await post(client, 'ipv4.php', static4);
  await post(client, 'applying.php', {id: trial('id'), seen: 'applying', change: 'undo'});
  await reaches('undone', 60);
  await until(() => ipv4Address() === ip, 'the lease');
  const [, link] = (await client.ask(`http://${ip}/applying.php`)).text.match(/href="(ipv4\.php\?again=[0-9a-f]+)"/);
  const {text} = await client.ask(`http://${ip}/${link}`);
  assert.match(text, /id="ip"[^>]* value="10\.20\.0\.8"|value="10\.20\.0\.8"[^>]* id="ip"/);
  client.headers = {host: 'localhost:8080'};
  assert.match((await client.ask(`http://${ip}/ipv4.php`)).text, /This page stays where it is; from the network it is then at/);
});
