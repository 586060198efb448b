// Changes on trial when something else goes wrong, and when two want something at the same instant.
'use strict';

const assert = require('node:assert/strict');
const fs = require('node:fs');
const {execFile} = require('node:child_process');
const {promisify} = require('node:util');
const {accounts, addresses, applianceFolder, asPages, ask, fromLan, inAppliance, ipv4Address, php, traceLog, until, web,
  writeAsPages} = require('./appliance.cjs');
const {errorOf, messages, open, press, signIn, test} = require('./browser.cjs');
const {answersAt, apply, audit, beginModes, Client, fillStatic, isUndone, isUndoneWithTabClosed, keepWhatIs, passes, reaches, record,
  setStatic, shift, trial} = require('./on_trial.cjs');

const dat = `${applianceFolder}/HTTPService/dat`;
const wrongNetwork = {change: 'addressing', mode: 'static', ip: '10.99.0.7', netmask: '255.255.255.0', gateway: '10.99.0.1', trial: '60',
  reviewed: 'yes'};

test('A watcher that is killed is followed by another one', {}, async (page) => {
  await setStatic('10.20.0.7');
  await signIn(page);
  await fillStatic(page, '10.99.0.7', '10.99.0.1');
  await apply(page);
  await page.goto('about:blank');
  await reaches('trial');
  const watchers = () => fromLan('sh', '-c', 'pgrep -f "^php -r .*watch_trial" || true').split('\n').filter(Boolean);
  for (let i = 0; i < 2; i += 1) {
    const [watcher] = await until(() => watchers().length === 1 && watchers(), 'one watcher');
    process.kill(Number(watcher), 'SIGKILL');
    await until(() => watchers().length === 1 && watchers()[0] !== watcher, 'another one');
  }
  await isUndone();
});

test('A record that is emptied or damaged during the trial does not end it', {}, async (page) => {
  await signIn(page);
  await fillStatic(page, '10.99.0.7', '10.99.0.1');
  await apply(page);
  await page.goto('about:blank');
  await reaches('trial');
  for (const damage of ['', 'a:1:{', 's:4:"none";', 'b:1;']) {
    writeAsPages(record, damage);
    await reaches('trial');
  }
  fs.unlinkSync(record);
  await reaches('trial');
  await isUndone();
});

test('A record that nobody can read is none: the pages go on, and another trial begins', {}, async (page) => {
  await signIn(page);
  for (const damage of ['', 'a:1:{', 'a:3:{s:2:"id";i:1;s:5:"state";i:1;s:5:"lines";i:1;}', '\0\0\0\0']) {
    writeAsPages(record, damage);
    await open(page, 'index.php');
    assert.equal(await messages(page), '', JSON.stringify(damage));
    await open(page, 'applying.php');
    assert.equal(await messages(page), 'No change is under way.', JSON.stringify(damage));
  }
  await fillStatic(page, '10.20.0.8');
  await apply(page);
  await page.goto('about:blank');
  await isUndone();
});

// While the work is done these folders are on a disk of their own, which has this many kilobytes.
async function onSmallDisk(folders, kilobytes, work) {
  const disk = '/run/small.disk';
  fs.mkdirSync(disk, {recursive: true});
  fromLan('mount', '-t', 'tmpfs', '-o', `size=${kilobytes}k,mode=755`, 'tmpfs', disk);
  const bound = [];
  try {
    folders.forEach((folder, i) => {
      fromLan('cp', '-a', folder, `${disk}/${i}`);
      fromLan('mount', '--bind', `${disk}/${i}`, folder);
      bound.push(folder);
    });
    await work(disk);
  } finally {
    for (const folder of bound.reverse()) fromLan('umount', '-l', folder);
    fromLan('umount', '-l', disk);
  }
}

function fill(disk) {
  try {
    fromLan('dd', 'if=/dev/zero', `of=${disk}/full`, 'bs=1k', 'count=1000000');
  } catch {
    // That is what is wanted.
  }
}

test('A full disk, or one that cannot be written: nothing is changed, and that is said', {expected: /session_|sess_/i}, async (page) => {
  await signIn(page);
  await fillStatic(page, '10.20.0.8');
  const tried = async (what) => {
    const logged = traceLog().length;
    const begun = audit().length;
    await press(page, 'Apply');
    assert.match(await errorOf(page, 'mode'), /^Nothing was changed: the trial cannot be written down/, what);
    assert.doesNotMatch(await messages(page), /This page has a fault/, what);
    assert.doesNotMatch(traceLog().slice(logged), /ntering set_/, what);
    assert.equal(ipv4Address(), '10.20.0.7', what);
    assert.equal(audit().length, begun, what);
    assert.deepEqual(fs.readdirSync(dat).filter((name) => /^trial\.[0-9a-f]{8}/.test(name)), [], what);
    assert.equal(await page.inputValue('#ip'), '10.20.0.8', what);
  };
  await onSmallDisk([dat], 2000, async (disk) => {
    fill(disk);
    await tried('full');
  });
  // Where the sessions cannot be written either, nobody is signed in any more.
  fromLan('mount', '--bind', dat, dat);
  fromLan('mount', '--bind', `${dat}/sessions`, `${dat}/sessions`);
  fromLan('mount', '-o', 'remount,bind,ro', dat);
  try {
    await tried('read-only');
    fromLan('mount', '-o', 'remount,bind,ro', `${dat}/sessions`);
    await press(page, 'Apply');
    assert.match(await page.innerText('body'), /What you sent was not saved/);
    assert.equal(ipv4Address(), '10.20.0.7');
  } finally {
    fromLan('umount', '-l', `${dat}/sessions`);
    fromLan('umount', '-l', dat);
  }
  await answersAt('10.20.0.7');
});

test('A disk that becomes full during the trial: the settings of before come back all the same', {}, async (page) => {
  await signIn(page);
  await onSmallDisk([dat, `${applianceFolder}/AppManager/dat`], 4000, async (disk) => {
    await fillStatic(page, '10.99.0.7', '10.99.0.1');
    await apply(page);
    await page.goto('about:blank');
    await reaches('trial');
    passes(50);
    fill(disk);
    await reaches('undone');
    assert.equal(trial('why'), 'time');
    await answersAt('10.20.0.7');
    assert.equal(fs.readFileSync(`${applianceFolder}/AppManager/dat/ipv4`, 'utf8').trim(), 'static 10.20.0.7?255.255.255.0?10.20.0.1');
    assert.ok(!fs.existsSync(`${dat}/trial.room`));
  });
  await setStatic('10.20.0.7');
});

test('A clock that is set during the trial changes nothing of its time', {}, async (page) => {
  await signIn(page);
  for (const difference of [86400, -86400]) {
    await fillStatic(page, '10.20.0.7', '10.20.0.66', '60');
    await apply(page);
    await page.goto('about:blank');
    await reaches('trial');
    // The same as a clock that is later, or earlier, than it was.
    shift('began', difference);
    await new Promise((resolve) => setTimeout(resolve, 2000));
    assert.equal(trial('state'), 'trial', `${difference}`);
    const client = new Client('10.20.0.1');
    await client.ask('http://10.20.0.7/index.php');
    assert.equal(trial('state'), 'trial', `${difference}`);
    shift('uptime', 55);
    await reaches('undone');
    await answersAt('10.20.0.7');
    await page.context().clearCookies();
    await signIn(page);
  }
});

test('Two windows that apply at the same instant: one change is on trial, the other was not applied', {}, async () => {
  const clients = [new Client(), new Client()];
  for (const client of clients) await client.signIn('10.20.0.7');
  const tokens = await Promise.all(clients.map((client) => client.hidden('http://10.20.0.7/ipv4.php', 'token')));
  for (let round = 0; round < 3; round += 1) {
    const logged = traceLog().length;
    const begun = audit().filter(([,, what]) => what === 'IPv4 settings begun').length;
    const answers = await Promise.all(clients.map((client, i) => client.ask('http://10.20.0.7/ipv4.php',
      {...wrongNetwork, ip: `10.99.0.${7 + i}`, token: tokens[i]})));
    assert.deepEqual(answers.map(({status}) => status).sort(), [200, 303]);
    assert.match(answers.find(({status}) => status === 200).text, /Another change is on trial: keep or undo it first/);
    const winner = answers.findIndex(({status}) => status === 303);
    assert.equal(trial('to'), `10.99.0.${7 + winner}`);
    assert.equal(audit().filter(([,, what]) => what === 'IPv4 settings begun').length, begun + 1);
    await reaches('trial');
    assert.equal(ipv4Address(), `10.99.0.${7 + winner}`);
    assert.equal(traceLog().slice(logged).match(/Firing off the thread to Set Network settings:/g).length, 1);
    await isUndone();
  }
});

test('Two administrators, each with an account, apply at once: one change is on trial, and the other one may undo it, not keep it unawares', {},
  async () => {
    await keepWhatIs();
    await setStatic('10.20.0.7');
    const users = fs.readFileSync(`${dat}/users`, 'utf8');
    accounts.set('night shift', 'owls know seven roofs');
    const hash = inAppliance('php', '-r', `require "${web}/shared/page.php"; echo hash_password("${accounts.get('night shift')}");`);
    fs.writeFileSync(`${dat}/users`, `${users}night shift:admin:${hash}\n`);
    try {
      const people = new Map();
      for (const [user, ip] of [['admin', '10.20.0.8'], ['night shift', '10.20.0.9']]) {
        const client = new Client();
        await client.signIn('10.20.0.7', user);
        people.set(user, {client, ip, token: await client.hidden('http://10.20.0.7/ipv4.php', 'token')});
      }
      const answers = await Promise.all([...people.values()].map(({client, ip, token}) => client.ask('http://10.20.0.7/ipv4.php',
        {...wrongNetwork, token, ip, gateway: '10.20.0.1', trial: '300'})));
      assert.equal(answers.filter(({text}) => /Another change is on trial: keep or undo it first/.test(text)).length, 1);
      await reaches('trial');
      const maker = trial('user');
      const other = maker === 'admin' ? 'night shift' : 'admin';
      const {ip} = people.get(maker);
      const {client, token} = people.get(other);
      await answersAt(ip);
      const told = (await client.ask(`http://${ip}/dns.php`)).text;
      assert.match(told, new RegExp(`a change by ${maker} is\\s+on\\s+trial`));
      assert.equal(trial('state'), 'trial', 'who was signed in before it, and did not make it, keeps nothing by being there');
      await client.ask(`http://${ip}/applying.php`, {token, change: 'undo', seen: 'trial', id: trial('id')});
      await reaches('undone');
      await answersAt('10.20.0.7');
      assert.match((await client.ask('http://10.20.0.7/applying.php')).text, new RegExp(`because ${other} asked for it`));
      const [begun, undoing, undone] = audit().slice(-3);
      assert.deepEqual([begun[0], begun[2]], [maker, 'IPv4 settings begun']);
      assert.deepEqual([undoing[0], undoing[2]], [other, 'IPv4 settings undoing']);
      assert.equal(undone[2], 'IPv4 settings undone');
    } finally {
      fs.writeFileSync(`${dat}/users`, users);
      accounts.delete('night shift');
    }
  });

test('A tab over IPv6 that goes on fetching itself keeps no change of IPv4, nor does its maker who looks there', {}, async () => {
  await keepWhatIs();
  await setStatic('10.20.0.7');
  php('set_ipv6_enabled($session, true);');
  try {
    const [address] = await until(() => addresses('inet6').length > 0 && addresses('inet6'), 'an address');
    const there = `[${address.split('/')[0]}]`;
    const client = new Client();
    await client.signIn(there);
    const token = await client.hidden(`http://${there}/ipv4.php`, 'token');
    await client.ask(`http://${there}/ipv4.php`, {...wrongNetwork, token});
    await reaches('trial');
    for (const name of ['applying.php?background=1', 'diagnostics.php?background=1', 'applying.php', 'index.php']) {
      assert.equal((await client.ask(`http://${there}/${name}`)).status, 200, name);
      assert.equal(trial('state'), 'trial', name);
    }
    await isUndone();
  } finally {
    php('set_ipv6_enabled($session, false);');
  }
});

test('At the new address neither the role monitor nor the key of another computer keeps the change', {}, async (page) => {
  await signIn(page);
  await fillStatic(page, '10.20.0.8');
  await press(page, 'Apply');
  const key = await page.getAttribute('[data-key]', 'data-key');
  await page.goto('about:blank');
  await reaches('trial');
  const monitor = new Client();
  await monitor.signIn('10.20.0.8', 'monitor');
  const seen = await monitor.ask('http://10.20.0.8/applying.php');
  assert.match(seen.text, /<h1>On trial<\/h1>/);
  const token = (seen.text.match(/name="token" value="([^"]*)"/) ?? ['', ''])[1];
  const wish = await monitor.ask('http://10.20.0.8/applying.php', {token, change: 'keep', seen: 'trial', id: trial('id')});
  assert.equal(wish.status, 403);
  assert.equal(trial('state'), 'trial');

  fromLan('ip', 'address', 'add', '10.20.0.77/24', 'dev', 'lan0');
  try {
    const {location} = await new Client('10.20.0.77').ask('http://10.20.0.8/trial.php', {key});
    assert.equal(location, 'applying.php');
    assert.equal(trial('state'), 'trial', 'not from another address');
  } finally {
    fromLan('ip', 'address', 'del', '10.20.0.77/24', 'dev', 'lan0');
  }
  // It is not used up by that.
  const maker = new Client();
  await maker.ask('http://10.20.0.8/trial.php', {key});
  assert.match((await maker.ask('http://10.20.0.8/applying.php')).text, /<h1>Kept<\/h1>/);
  assert.equal(trial('state'), 'kept');
  // Used a second time it gives nobody a session, even the same computer.
  const again = new Client();
  await again.ask('http://10.20.0.8/trial.php', {key});
  assert.match((await again.ask('http://10.20.0.8/index.php')).text, /action="signin\.php"/);
  await setStatic('10.20.0.7');
});

// The record says who has won, and the device is as the record says.
async function agrees(round, winner) {
  const kept = winner === 'keep';
  await reaches(kept ? 'kept' : 'undone');
  assert.equal(ask('ipv6Manager.sh', '-l'), kept ? '0' : '1', `round ${round}: ${winner}`);
  if (kept) php('set_stateless_enabled($session, true);');
}

// Of keeping and undoing the one that the audit has since so many lines.
function winnerSince(lines, round) {
  const did = audit().slice(lines).map(([,, what]) => what.replace('IPv6 settings ', ''))
    .filter((what) => what === 'kept' || what === 'undoing');
  assert.equal(did.length, 1, `round ${round}: ${did}`);
  return did[0] === 'kept' ? 'keep' : 'undo';
}

test('Keep of one person and Undo of another at the same instant: exactly one wins, 50 times, and the device is as the record says', {}, async () => {
  await keepWhatIs();
  const one = new Client();
  const other = new Client();
  await one.signIn('10.20.0.7');
  await other.signIn('10.20.0.7');
  const tokens = [await one.hidden('http://10.20.0.7/dns.php', 'token'), await other.hidden('http://10.20.0.7/dns.php', 'token')];
  const wins = {keep: 0, undo: 0};
  for (let round = 0; round < 50; round += 1) {
    const id = beginModes();
    const before = audit().length;
    const wish = (client, token, change) => client.ask('http://10.20.0.7/applying.php', {token, id, seen: 'trial', change});
    const wishes = [() => wish(one, tokens[0], 'keep'), () => wish(other, tokens[1], 'undo')];
    // The one that is sent first has an advantage.
    await Promise.all((round % 2 ? wishes : wishes.reverse()).map((send) => send()));
    const winner = winnerSince(before, round);
    wins[winner] += 1;
    await agrees(round, winner);
  }
  assert.ok(wins.keep > 0 && wins.undo > 0, `a race that one always wins is none: ${JSON.stringify(wins)}`);
});

test('Keep of a person, and the end of the time, at the same instant: exactly one wins, and the device is as the record says', {}, async () => {
  const client = new Client();
  await client.signIn('10.20.0.7');
  const token = await client.hidden('http://10.20.0.7/dns.php', 'token');
  const watched = promisify(execFile);
  for (let round = 0; round < 20; round += 1) {
    const id = beginModes();
    const before = audit().length;
    passes(299);
    // The time is over within the next second; the watcher looks twice in each.
    const watcher = watched('nsenter', ['--net=/run/appliance/appliance.net', '--', ...asPages, 'php', '-r',
      `require "${web}/shared/page.php"; watch_trial();`]);
    await new Promise((resolve) => setTimeout(resolve, 60 * round));
    await client.ask('http://10.20.0.7/applying.php', {token, id, seen: 'trial', change: 'keep'});
    await watcher;
    await agrees(round, winnerSince(before, round));
  }
});

test('Undo that was pressed before the Keep of another was seen leaves what is kept; pressed once more it undoes it', {}, async () => {
  const client = new Client();
  await client.signIn('10.20.0.7');
  const token = await client.hidden('http://10.20.0.7/dns.php', 'token');
  const id = beginModes();
  await client.ask('http://10.20.0.7/applying.php', {token, id, seen: 'trial', change: 'keep'});
  assert.equal(trial('state'), 'kept');
  await client.ask('http://10.20.0.7/applying.php', {token, id, seen: 'trial', change: 'undo'});
  assert.equal(trial('state'), 'kept');
  const {text} = await client.ask('http://10.20.0.7/applying.php');
  assert.match(text, /The change was kept before it could be undone/);
  assert.match(text, /name="seen" value="kept"/);
  await client.ask('http://10.20.0.7/applying.php', {token, id, seen: 'kept', change: 'undo'});
  await reaches('undone');
  assert.equal(ask('ipv6Manager.sh', '-l'), '1');
  // As the other tests find it.
  ask('ipv4Manager.sh', '-c', '-d', 'on');
  await until(() => /^10\.20\.0\.1\d\d$/.test(ipv4Address()), 'a lease');
});
