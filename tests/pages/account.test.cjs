// The account: its password and its sessions; and what was typed when a session ended.
'use strict';

const assert = require('node:assert/strict');
const {execFileSync, spawn, spawnSync} = require('node:child_process');
const fs = require('node:fs');
const {accounts, applianceFolder, fromLan, inAppliance, php, until, web, withScript, writeAsPages} = require('./appliance.cjs');
const {asksToSignIn, base, enterPassword, errorOf, messages, open, press, sessionCookie, showCommunity, signIn, test} = require('./browser.cjs');

const dat = `${applianceFolder}/HTTPService/dat`;
const users = `${dat}/users`;
const own = '[aria-labelledby=own]';
const others = '[aria-labelledby=others]';
const good = 'four unrelated words here';

// Passwords are as they were afterwards.
async function keepingAccounts(work) {
  const before = fs.readFileSync(users, 'utf8');
  try {
    await work(before);
  } finally {
    writeAsPages(users, before);
    writeAsPages(`${dat}/attempts`, '');
  }
}

async function changeOwn(page, old, next, again = next) {
  await page.fill('#old_password', old);
  await page.fill('#new_password', next);
  await page.fill('#password_again', again);
  await press(page, 'Change password', own);
}

// Whether the account's password is this one, by the hash that is stored.
function isPassword(name, password) {
  return php(`$lines = file('${users}'); foreach ($lines as $line) { list($name, $role, $hash) = explode(':', trim($line), 3);`
    + `if ($name == '${name}') echo password_verify('${password}', $hash) ? 'yes' : 'no'; }`) === 'yes';
}

async function sessionFile(context) {
  return `${dat}/sessions/sess_${(await sessionCookie(context)).value}`;
}

// As if it had been that much earlier.
async function age(context, what, seconds) {
  const file = await sessionFile(context);
  const text = fs.readFileSync(file, 'utf8');
  const aged = text.replace(new RegExp(`;${what}\\|i:(\\d+);`), (all, time) => `;${what}|i:${time - seconds};`);
  assert.notEqual(aged, text);
  writeAsPages(file, aged);
}

test('One\'s own password is changed: this session goes on, all others end', {}, async (page, context) => {
  await keepingAccounts(async (before) => {
    const other = await context.browser().newContext();
    const second = await other.newPage();
    await signIn(second);
    await signIn(page, 'admin', 'account.php');
    const {value} = await sessionCookie(context);
    await changeOwn(page, accounts.get('admin'), good);
    assert.equal(await messages(page), 'Your password is changed. Its strength: strong. All your other sessions have ended.');
    assert.notEqual((await sessionCookie(context)).value, value, 'it has another identifier');
    await open(page, 'dns.php');
    assert.equal(await page.innerText('h1'), 'DNS');
    await open(second, 'dns.php');
    await asksToSignIn(second);
    assert.ok(isPassword('admin', good));
    assert.equal(fs.statSync(users).mode & 0o777, 0o600);
    assert.equal(fs.readFileSync(users, 'utf8').split('\n')[1], before.split('\n')[1], 'the other account is as it was');
    assert.doesNotMatch(fs.readFileSync(`${dat}/audit`, 'utf8'), /unrelated/);
    // Signing in knows it, too.
    await second.fill('#user', 'admin');
    await second.fill('#password', good);
    await press(second, 'Sign in');
    assert.equal(await second.innerText('h1'), 'DNS');
    await other.close();
  });
});

test('A password that is no good, and the wrong old one, are refused at their field; nothing changes', {}, async (page) => {
  await keepingAccounts(async (before) => {
    await signIn(page, 'admin', 'account.php');
    const right = accounts.get('admin');
    await page.evaluate(() => document.querySelectorAll('[required]').forEach((field) => { field.required = false; }));
    const cases = [
      [right, 'short', 'short', 'new_password', /^Too short: it has 5 characters and needs at least 10\.$/],
      [right, 'ääääääääf', 'ääääääääf', 'new_password', /^Too short: it has 9 characters/],
      [right, '', '', 'new_password', /^Enter a password\.$/],
      [right, 'aaaaaaaaaaaaaaaa', 'aaaaaaaaaaaaaaaa', 'new_password', /^Weak: /],
      [right, 'Password123', 'Password123', 'new_password', /^Weak: /],
      [right, 'admin-admin-admin', 'admin-admin-admin', 'new_password', /^Weak: /],
      [right, 'x1'.repeat(40), 'x1'.repeat(40), 'new_password', /^Too long: at most 72 bytes are looked at, and this has 80\.$/],
      [right, good, `${good}.`, 'password_again', /^The two are not the same\.$/],
      [right, right, right, 'new_password', /^This is the old password\.$/],
      ['not it at all', good, good, 'old_password', /^This is not your password\.$/],
    ];
    for (const [old, next, again, field, said] of cases) {
      await page.evaluate(() => document.querySelectorAll('[required]').forEach((entry) => { entry.required = false; }));
      await changeOwn(page, old, next, again);
      assert.match(await errorOf(page, field), said, next);
      for (const name of ['old_password', 'new_password', 'password_again']) assert.equal(await page.inputValue(`#${name}`), '', 'none is sent back');
      assert.equal(fs.readFileSync(users, 'utf8'), before);
    }
    // Guessing is slowed down here, too: each guess that is looked at doubles the wait, until a request is quicker than that.
    const said = [];
    while (said.length < 10 && !/^Too many attempts\. Please wait/.test(said.at(-1))) {
      await changeOwn(page, `guess ${said.length}`, good);
      said.push(await errorOf(page, 'old_password'));
    }
    assert.match(said.at(-1), /^Too many attempts\. Please wait/, said.join(' '));
    assert.equal(fs.readFileSync(users, 'utf8'), before);
  });
});

test('How strong a password is, is said as it is typed', {user: 'admin'}, async (page) => {
  await open(page, 'account.php');
  const said = page.locator(`${own} [role=status]`);
  for (const [typed, words] of [['123456789', 'Too short: 1 more character.'], ['1234567890', 'Strength by its length: enough.'],
    ['a'.repeat(14), 'Strength by its length: good.'], ['a'.repeat(20), 'Strength by its length: strong.'], ['', '']]) {
    await page.fill('#new_password', typed);
    await until(async () => await said.innerText() === words, words);
  }
});

test('The role monitor changes its own password, and nobody else\'s', {}, async (page, context) => {
  await keepingAccounts(async (before) => {
    await signIn(page, 'monitor', 'account.php');
    assert.equal(await page.locator(others).count(), 0);
    const token = await page.getAttribute('[name=token] >> nth=0', 'value');
    const {name, value} = await sessionCookie(context);
    const answer = await fetch(`${base()}account.php`, {method: 'POST', headers: {cookie: `${name}=${value}`}, body: new URLSearchParams({
      token, change: 'other', name: 'admin', own_password: accounts.get('monitor'), other_password: good, other_password_again: good})});
    assert.equal(answer.status, 403);
    assert.equal(fs.readFileSync(users, 'utf8'), before);
    await changeOwn(page, accounts.get('monitor'), good);
    assert.match(await messages(page), /^Your password is changed\./);
    assert.ok(isPassword('monitor', good));
    assert.ok(isPassword('admin', accounts.get('admin')));
  });
});

test('An admin sets the password of another account, whose sessions end; the admin\'s own is asked for', {}, async (page, context) => {
  await keepingAccounts(async (before) => {
    const other = await context.browser().newContext();
    const second = await other.newPage();
    await signIn(second, 'monitor');
    await signIn(page, 'admin', 'account.php');
    assert.deepEqual(await page.locator('#name option').allInnerTexts(), ['monitor']);
    const set = async (mine, next) => {
      await page.fill('#other_password', next);
      await page.fill('#other_password_again', next);
      await page.fill('#own_password', mine);
      await press(page, 'Set password', others);
    };
    await set(accounts.get('monitor'), good);
    assert.equal(await errorOf(page, 'own_password'), 'This is not your password.');
    assert.equal(fs.readFileSync(users, 'utf8'), before);
    writeAsPages(`${dat}/attempts`, '');
    await set(accounts.get('admin'), good);
    assert.equal(await messages(page), 'The password of monitor is changed. Its strength: strong. All sessions of monitor have ended.');
    assert.ok(isPassword('monitor', good));
    await open(second, 'dns.php');
    await asksToSignIn(second);
    await other.close();
  });
});

test('Without the token no password is changed and no session ended', {user: 'admin'}, async (page, context) => {
  const before = fs.readFileSync(users, 'utf8');
  const {name, value} = await sessionCookie(context);
  for (const values of [{change: 'own', old_password: accounts.get('admin'), new_password: good, password_again: good},
    {change: 'other', name: 'monitor', own_password: accounts.get('admin'), other_password: good, other_password_again: good}, {change: 'sessions'}]) {
    const answer = await fetch(`${base()}account.php`, {method: 'POST', headers: {cookie: `${name}=${value}`}, body: new URLSearchParams(values)});
    assert.equal(answer.status, 403);
  }
  assert.equal(fs.readFileSync(users, 'utf8'), before);
  await open(page, 'dns.php');
  assert.equal(await page.innerText('h1'), 'DNS');
});

const change = 'require $argv[1]; $error = set_password($argv[2], $argv[3]); echo $error; exit($error == "" ? 0 : 1);';
const changing = (name, password) => ['-n', '-r', change, `${web}/shared/page.php`, name, password];

test('Many changes at once: each is made whole, and none undoes another', {}, async () => {
  await keepingAccounts(async () => {
    const done = Array.from({length: 6}, (none, i) => new Promise((resolve) => {
      spawn('php', changing(i % 2 ? 'admin' : 'monitor', `password number ${i}`)).on('close', resolve);
    }));
    assert.deepEqual(await Promise.all(done), [0, 0, 0, 0, 0, 0]);
    assert.match(fs.readFileSync(users, 'utf8'), /^admin:admin:\$2y\$.{56}\nmonitor:monitor:\$2y\$.{56}\n$/);
    assert.ok([1, 3, 5].some((i) => isPassword('admin', `password number ${i}`)));
    assert.ok([0, 2, 4].some((i) => isPassword('monitor', `password number ${i}`)));
    assert.deepEqual(fs.readdirSync(dat).filter((name) => /^users\../.test(name)), ['users.lock'], 'nothing is left beside it');
  });
});

test('A change that is killed leaves the old password or the new one', {}, async () => {
  await keepingAccounts(async (before) => {
    const ends = {old: 0, new: 0};
    for (let i = 0; i < 24; i++) {
      writeAsPages(users, before);
      const child = spawn('php', changing('admin', good));
      const ended = new Promise((resolve) => { child.on('close', resolve); });
      await new Promise((resolve) => setTimeout(resolve, 10 * i));
      child.kill('SIGKILL');
      await ended;
      const text = fs.readFileSync(users, 'utf8');
      assert.match(text, /^admin:admin:\$2y\$.{56}\nmonitor:monitor:\$2y\$.{56}\n$/);
      if (text === before) ends.old += 1;
      else ends[isPassword('admin', good) ? 'new' : 'neither'] += 1;
    }
    assert.equal(ends.neither, undefined);
    assert.ok(ends.old > 0, 'some were killed before they were done');
    writeAsPages(`${dat}/users.0123abcd`, 'half of');
    assert.equal(spawnSync('php', changing('admin', good)).status, 0);
    assert.deepEqual(fs.readdirSync(dat).filter((name) => /^users\../.test(name)), ['users.lock'], 'the next change clears up');
  });
});

// The pages' folder is a small disk of its own while the work is done.
async function onSmallDisk(work) {
  const copy = fs.mkdtempSync('/tmp/dat-');
  execFileSync('cp', ['-a', `${dat}/.`, copy]);
  execFileSync('mount', ['-t', 'tmpfs', '-o', 'size=512k,mode=700', 'small', dat]);
  try {
    execFileSync('cp', ['-a', `${copy}/.`, dat]);
    await work();
  } finally {
    execFileSync('umount', ['--lazy', dat]);
    fs.rmSync(copy, {recursive: true});
  }
}

test('On a full disk the password stays as it was, and the page says why', {}, async (page, context) => {
  await keepingAccounts(async (before) => onSmallDisk(async () => {
    writeAsPages(`${dat}/attempts`, `10.20.0.77/1 1 ${Math.floor(Date.now() / 1000)}\n`);
    await signIn(page, 'admin', 'account.php');
    spawnSync('sh', ['-c', `cat /dev/zero >${dat}/filler`]);
    await changeOwn(page, accounts.get('admin'), good);
    assert.equal(await errorOf(page, 'new_password'),
      'The password was not changed: the disk is full or cannot be written. The old one is still good.');
    assert.equal(fs.readFileSync(users, 'utf8'), before);
    assert.doesNotMatch(await page.innerText('main'), /This page has a fault/);
    // Nobody new can be signed in, and is told that.
    const other = await context.browser().newContext();
    const second = await other.newPage();
    await second.goto(`${base()}signin.php`);
    await second.fill('#user', 'admin');
    await second.fill('#password', accounts.get('admin'));
    await press(second, 'Sign in');
    assert.match(await second.innerText('main'), /nobody can be signed in: the disk is full or cannot be written/);
    await other.close();
    fs.unlinkSync(`${dat}/filler`);
    await changeOwn(page, accounts.get('admin'), good);
    assert.match(await messages(page), /^Your password is changed\./, 'with room again it works');
  }));
});

test('On a disk that cannot be written the password stays as it was', {}, async () => {
  await keepingAccounts(async (before) => onSmallDisk(async () => {
    execFileSync('mount', ['-o', 'remount,ro', dat]);
    const {status, stdout} = spawnSync('php', changing('admin', good), {encoding: 'utf8'});
    assert.equal(status, 1);
    assert.match(stdout, /^The password was not changed: /);
    assert.equal(fs.readFileSync(users, 'utf8'), before);
  }));
});

test('Lines of the accounts that are damaged stay as they are, and harm no other', {}, async () => {
  await keepingAccounts(async (before) => {
    writeAsPages(users, `# note\n\n${before}half:\n`);
    assert.equal(spawnSync('php', changing('monitor', good)).status, 0);
    const text = fs.readFileSync(users, 'utf8');
    assert.match(text, /^# note\n\nadmin:admin:.*\nmonitor:monitor:.*\nhalf:\n$/);
    assert.ok(isPassword('monitor', good));
    const {status, stdout} = spawnSync('php', changing('half', good), {encoding: 'utf8'});
    assert.equal(status, 1);
    assert.match(stdout, /no account of this name/);
    writeAsPages(users, '');
    assert.equal(spawnSync('php', changing('monitor', good)).status, 1);
    assert.equal(fs.readFileSync(users, 'utf8'), '');
  });
});

test('The sessions are listed with address and time, this one marked; signing out everywhere ends them all', {}, async (page, context) => {
  const other = await context.browser().newContext();
  const second = await other.newPage();
  await signIn(second, 'monitor');
  const foreign = await context.browser().newContext();
  const third = await foreign.newPage();
  await signIn(third, 'admin');
  await signIn(page, 'monitor', 'account.php');
  // One that nobody has used for long, and a file that is none.
  writeAsPages(`${dat}/sessions/sess_${'c'.repeat(32)}`, fs.readFileSync(await sessionFile(context), 'utf8').replace(/seen\|i:\d+/, 'seen|i:1'));
  writeAsPages(`${dat}/sessions/sess_${'d'.repeat(32)}`, '\0damaged');
  await page.reload();
  const rows = page.locator('[aria-labelledby=sessions] tbody tr');
  const listed = await rows.allInnerTexts();
  assert.ok(listed.length >= 2, listed.join());
  for (const text of listed) assert.match(text, /^\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\s+10\.20\.0\.1\s[^]*\d{4}-\d\d-\d\d/);
  assert.equal(listed.filter((text) => text.includes('This session')).length, 1);
  assert.ok(!listed.join().includes('1970'));
  await press(page, 'Sign out everywhere');
  await asksToSignIn(page);
  await open(second, 'dns.php');
  await asksToSignIn(second);
  await open(third, 'dns.php');
  assert.equal(await third.innerText('h1'), 'DNS', 'another account\'s goes on');
  await other.close();
  await foreign.close();
});

test('The read community is not in the page of the role monitor, and admin sees it on a click, also without scripts', {},
  async (page, context) => {
    php('$settings = get_snmp_settings($session); $settings->community_name = "hush-hush"; set_snmp_settings($session, $settings);');
    try {
      await signIn(page, 'monitor', 'snmp.php');
      assert.doesNotMatch(await page.content(), /hush-hush/);
      assert.match(await page.innerText('main'), /Read community\s+Not shown/);
      const plain = await context.browser().newContext({javaScriptEnabled: false});
      const second = await plain.newPage();
      await signIn(second, 'admin', 'snmp.php');
      assert.ok(!await second.isVisible('#community_name'));
      await showCommunity(second);
      assert.ok(await second.isVisible('#community_name'));
      assert.equal(await second.inputValue('#community_name'), 'hush-hush');
      await plain.close();
    } finally {
      php('$settings = get_snmp_settings($session); $settings->community_name = "public"; set_snmp_settings($session, $settings);');
    }
  });

test('Two minutes before its end the session warns, where the focus stays; who stays goes on', {}, async (page, context) => {
  await page.clock.install();
  await signIn(page, 'admin', 'dns.php');
  await page.focus('#dnsPrimary');
  await age(context, 'seen', 790);
  assert.equal(await page.innerText('#session'), '');
  await page.clock.fastForward(790 * 1000);
  await page.waitForSelector('#session >> text=You will be signed out in 2 minutes');
  assert.equal(await page.getAttribute('#session', 'role'), 'status');
  assert.equal(await page.evaluate(() => document.activeElement.id), 'dnsPrimary');
  const before = fs.readFileSync(await sessionFile(context), 'utf8');
  await page.click('button:text-is("Stay signed in")');
  await page.waitForSelector('#session >> text=You stay signed in.');
  assert.notEqual(fs.readFileSync(await sessionFile(context), 'utf8'), before);
  await page.clock.fastForward(6000);
  await until(async () => await page.innerText('#session') === '', 'the message to go');
  // What goes on in another page of the session needs no warning here.
  await page.clock.fastForward(790 * 1000);
  await new Promise((resolve) => setTimeout(resolve, 1000));
  assert.equal(await page.innerText('#session'), '', 'the session is as young as its last activity');
  await age(context, 'seen', 901);
  await page.clock.fastForward(790 * 1000);
  await page.waitForSelector('#session >> text=You have been signed out.');
});

test('A session that has reached its longest life says that nothing prolongs it', {}, async (page, context) => {
  await page.clock.install();
  await signIn(page, 'admin', 'dns.php');
  await age(context, 'signed_in', 12 * 3600 - 100);
  await open(page, 'dns.php');
  await page.clock.fastForward(1000);
  await page.waitForSelector('#session >> text=a session does not last longer');
  assert.equal(await page.locator('#session button').count(), 0);
});

// The session ends while the form is open.
async function endSession(context) {
  await age(context, 'seen', 901);
}

for (const javaScriptEnabled of [true, false]) {
  test(`What was typed is there again after the sign-in, and nothing is applied unasked: ${javaScriptEnabled ? 'with' : 'without'} scripts`,
    {javaScriptEnabled}, async (page, context) => {
      await signIn(page, 'admin', 'ipv4.php');
      const name = inAppliance('hostname');
      await page.fill('#hostname', 'typed-name');
      await endSession(context);
      await press(page, 'Save name');
      assert.equal(await asksToSignIn(page), 'You were signed out after 15 minutes without activity. What you sent was not saved.'
        + ' It is in the form again when you have signed in.');
      // A wrong password loses nothing of it.
      await page.fill('#user', 'admin');
      await page.fill('#password', 'wrong');
      await press(page, 'Sign in');
      await new Promise((resolve) => setTimeout(resolve, 1500));
      await enterPassword(page);
      assert.equal(page.url(), `${base()}ipv4.php`);
      assert.match(await messages(page), /^You are signed in again\. What you had typed is in the form below; nothing of it was applied yet\./);
      assert.equal(await page.inputValue('#hostname'), 'typed-name');
      assert.equal(inAppliance('hostname'), name);
      await press(page, 'Save name');
      assert.equal(inAppliance('hostname'), 'typed-name');
      await page.fill('#hostname', name);
      await press(page, 'Save name');
      assert.equal(inAppliance('hostname'), name);
    });
}

test('Marks, choices and the time of a trial come back as well, only once, and only in their form', {}, async (page, context) => {
  await signIn(page, 'admin', 'ipv4.php');
  await page.check('#mode-static');
  await page.fill('#ip', '10.20.0.77');
  await page.selectOption('#trial', '300');
  await endSession(context);
  await press(page, 'Apply');
  await enterPassword(page);
  assert.ok(await page.isChecked('#mode-static'));
  assert.equal(await page.inputValue('#ip'), '10.20.0.77');
  assert.equal(await page.inputValue('#trial'), '300');
  assert.equal(await page.inputValue('#hostname'), inAppliance('hostname'));
  await page.reload();
  assert.notEqual(await page.inputValue('#ip'), '10.20.0.77');
  // A page with names of its own, and parts that send nothing while they are inactive.
  await open(page, 'ipv6.php');
  await page.check('#enabled');
  await page.check('#static');
  await page.fill('#ipStatic', '2001:db8:20::66');
  await endSession(context);
  await press(page, 'Apply');
  await enterPassword(page);
  assert.equal(await page.inputValue('#ipStatic'), '2001:db8:20::66');
  assert.ok(await page.isChecked('#static'));
  assert.ok(await page.isChecked('#enabled'));
  assert.doesNotMatch(await messages(page), /This page has a fault/);
  await open(page, 'snmp.php');
  const [traps, community] = [await page.isChecked('#trap2'), await page.inputValue('#community_name')];
  await page.setChecked('#trap2', !traps);
  await showCommunity(page);
  await page.fill('#community_name', 'not-to-be-kept');
  await endSession(context);
  await press(page, 'Save');
  assert.doesNotMatch(await page.innerHTML('main'), /not-to-be-kept|community/, 'a secret does not go along');
  await enterPassword(page);
  assert.equal(await page.isChecked('#trap2'), !traps);
  assert.equal(await page.inputValue('#community_name'), community);
});

test('A question to the network comes back, too', {}, async (page, context) => {
  await signIn(page, 'admin', 'diagnostics.php');
  for (const [field, button, value, other] of [['#lookup', 'Look up', 'printer.lan.test', '#ping'], ['#ping', 'Ping', '10.20.0.1', '#lookup']]) {
    await page.fill(field, value);
    await endSession(context);
    await press(page, button);
    await enterPassword(page);
    assert.match(await messages(page), /^You are signed in again\. What you had typed is in the form below/);
    assert.equal(await page.inputValue(field), value);
    assert.equal(await page.inputValue(other), '');
    assert.equal(await page.locator('[aria-labelledby=network] .message').count(), 0, 'nothing was asked');
  }
});

test('Only what comes back after the sign-in is said to do so', {}, async (page, context) => {
  const saidOf = async (name, type) => {
    await signIn(page, 'admin', name);
    await type();
    await age(context, 'seen', 901);
    await page.clock.fastForward(901 * 1000);
    await page.waitForSelector('#session >> text=You have been signed out.');
    return page.innerText('#session');
  };
  await page.clock.install();
  assert.match(await saidOf('dns.php', () => page.fill('#dnsPrimary', '10.20.0.66')), /is not lost: press the button/);
  assert.match(await saidOf('account.php', () => page.fill('#old_password', 'x')), /^You have been signed out\. Not all/);
  assert.match(await saidOf('snmp.php', async () => {
    await showCommunity(page);
    await page.fill('#community_name', 'typed');
  }), /^You have been signed out\. Not all/);
  assert.match(await saidOf('dns.php', async () => {}), /^You have been signed out\. The next click asks for the password\.$/);
});

test('Whose session is ended while the page asks the device is asked to sign in', {}, async (page, context) => {
  const asked = '/tmp/device.asked';
  await withScript('ipv6Manager.sh', `: >${asked}; sleep 2; exec sh "$ORIGINAL" "$@"`, async () => {
    await signIn(page, 'admin', 'account.php');
    const file = await sessionFile(context);
    fs.rmSync(asked, {force: true});
    const opened = open(page, 'dns.php');
    await until(() => fs.existsSync(asked), 'the page to ask the device');
    fs.unlinkSync(file);
    await opened;
    assert.equal(await asksToSignIn(page), 'Your session has ended.');
    assert.doesNotMatch(await page.innerText('body'), /This page has a fault/);
    assert.ok(!fs.existsSync(file));
    assert.deepEqual(fs.readdirSync(`${dat}/sessions`).filter((name) => fs.statSync(`${dat}/sessions/${name}`).size === 0), []);
    // A change whose maker was signed out meanwhile is not made.
    await enterPassword(page);
    await page.fill('#dnsPrimary', '10.20.0.66');
    const again = await sessionFile(context);
    fs.rmSync(asked);
    const sent = press(page, 'Save');
    await until(() => fs.existsSync(asked), 'the page to ask the device');
    fs.unlinkSync(again);
    await sent;
    assert.match(await asksToSignIn(page), /^Your session has ended\. What you sent was not saved\./);
  });
  assert.equal(inAppliance('sh', `${applianceFolder}/AppManager/bin/ipv6Manager.sh`, '-g', 'dns'), 'disabled');
});

test('A damaged file of a session is no fault of the page, and goes', {}, async (page, context) => {
  await signIn(page, 'admin', 'account.php');
  const file = await sessionFile(context);
  for (const text of ['rubbish', 'user|s:5:"adm', 'user|O:8:"stdClass":1:{', '']) {
    writeAsPages(file, text);
    await open(page, 'dns.php');
    assert.equal(await page.locator('form[action="signin.php"]').count(), 1, text);
    assert.doesNotMatch(await page.innerText('body'), /This page has a fault/, text);
    assert.ok(!fs.existsSync(file), text);
  }
});

test('Where no process is free for the guard the session is taken up again all the same', {}, async () => {
  const said = inAppliance('sh', '-c', 'ulimit -n 64; exec php -r "$1"', 'sh', `require '${applianceFolder}/HTTPService/lighttpd/shared/page.php';
    begin_session(array('user' => 'admin')); $id = session_id();
    $held = array(); while (count($held) < 64 && ($file = @fopen('/dev/null', 'r'))) $held[] = $file;
    ask_device(); echo $asked['process'] ? 'it has begun' : 'none', ' '; $held = array(); end_asking();
    $_SESSION['later'] = 'kept'; session_write_close(); readfile(session_file($id)); unlink(session_file($id));`);
  assert.match(said, /^none .*later\|s:4:"kept";$/);
});

test('What was typed is shown to its user alone, and no other site fills in a form', {}, async (page, context) => {
  await signIn(page, 'admin', 'dns.php');
  await page.fill('#dnsPrimary', '10.20.0.66');
  await endSession(context);
  await press(page, 'Save');
  await enterPassword(page, 'monitor');
  assert.doesNotMatch(await page.content(), /10\.20\.0\.66/);
  assert.match(await messages(page), /^What was typed before this sign-in is not shown: the form was somebody else's\.$/);
  await context.clearCookies();
  for (const proof of [undefined, 'a'.repeat(40)]) {
    await page.goto('about:blank');
    await page.setContent(`<form method="post" action="${base()}dns.php"><input name="change" value="dns"><input name="dnsPrimary" value="10.20.0.99">
      ${proof ? `<input name="proof" value="${proof}">` : ''}<button>Send</button></form>`);
    await press(page, 'Send');
    await enterPassword(page);
    assert.equal(await page.inputValue('#dnsPrimary'), '', proof);
    await context.clearCookies();
  }
});

test('Who has signed in again in another window gets the form back with what was typed', {}, async (page, context) => {
  await signIn(page, 'admin', 'dns.php');
  await page.fill('#dnsPrimary', '10.20.0.66');
  const second = await context.newPage();
  await second.goto(`${base()}index.php`);
  await press(second, 'Sign out');
  await enterPassword(second);
  await press(page, 'Save');
  assert.match(await page.innerText('main'), /Nothing was changed/);
  await page.click('a:text-is("Open the page again with what you typed")');
  await page.waitForSelector('#dnsPrimary');
  assert.equal(await page.inputValue('#dnsPrimary'), '10.20.0.66');
});

test('Leaving a form with changes asks; one without, or sending it, does not', {user: 'admin'}, async (page) => {
  let asked = 0;
  page.on('dialog', (dialog) => { if (dialog.type() === 'beforeunload') asked += 1; });
  const leaving = async (expected, why) => {
    asked = 0;
    await open(page, 'index.php');
    assert.equal(asked, expected, why);
    await open(page, 'ipv4.php');
    await page.click('#hostname');
  };
  await open(page, 'ipv4.php');
  await page.click('#hostname');
  await leaving(0, 'nothing was typed');
  await page.keyboard.type('x');
  await leaving(1, 'something was typed');
  await page.keyboard.type('x');
  await page.keyboard.press('Backspace');
  await leaving(0, 'it is as it was');
  await page.selectOption('#trial', '300');
  await leaving(1, 'a choice');
  asked = 0;
  await page.keyboard.press('End');
  await page.keyboard.type('..');
  await press(page, 'Save name');
  assert.equal(asked, 0, 'it is sent');
  await page.click('#hostname');
  await leaving(1, 'it was refused, and is not saved');
  await page.check('#mode-static');
  await page.fill('#hostname', 'library');
  asked = 0;
  await press(page, 'Save name');
  assert.equal(asked, 1, 'what is in the other form of the page would be lost');
});

test('A new password on the appliance itself: for the account that is named, whose sessions end', {}, async (page) => {
  await keepingAccounts(async (before) => {
    await signIn(page, 'monitor');
    const script = `${applianceFolder}/AppManager/bin/resetPassword.sh`;
    const unknown = spawnSync('nsenter', ['--net=/run/appliance/appliance.net', '--', 'sh', script, 'nobody'], {encoding: 'utf8'});
    assert.equal(unknown.status, 1);
    assert.equal(unknown.stdout, '');
    assert.match(unknown.stderr, /There is no account of the name "nobody"; there are: admin, monitor\./);
    assert.equal(fs.readFileSync(users, 'utf8'), before);
    const [, password] = inAppliance('sh', script, 'monitor').match(/^monitor (([a-z2-9]{4}-){3}[a-z2-9]{4})$/);
    assert.ok(isPassword('monitor', password));
    assert.equal(fs.readFileSync(users, 'utf8').split('\n')[0], before.split('\n')[0]);
    await open(page, 'dns.php');
    await asksToSignIn(page);
    assert.match(fromLan('sh', '-c', `sh ${script} 2>&1 || echo refused $?`), /refused 2$/, 'without a name');
  });
});
