// Signing in and out.
'use strict';

const assert = require('node:assert/strict');
const {execFileSync, spawnSync} = require('node:child_process');
const {createHash} = require('node:crypto');
const fs = require('node:fs');
const {accounts, applianceFolder, inAppliance, until, web, writeAsPages} = require('./appliance.cjs');
const {asksToSignIn, base, enterPassword, open, pages, press, sessionCookie, signIn, test} = require('./browser.cjs');

const dat = `${applianceFolder}/HTTPService/dat`;
const firstPassword = `${applianceFolder}/AppManager/bin/firstPassword.sh`;

const attempts = `${dat}/attempts`;
const now = () => Math.floor(Date.now() / 1000);

// The count of the names that this one is among, of everybody at the browser's address.
function countOf(name) {
  return `10.20.0.1/${Number.parseInt(createHash('sha1').update(name).digest('hex').slice(0, 4), 16) % 64}`;
}

function sessionFiles() {
  return fs.readdirSync(`${dat}/sessions`).sort();
}

// As if everything in the session had been so many seconds earlier.
async function age(context, what, seconds) {
  const file = `${dat}/sessions/sess_${(await sessionCookie(context)).value}`;
  writeAsPages(file, fs.readFileSync(file, 'utf8').replace(new RegExp(`;${what}\\|i:(\\d+);`), (all, time) => `;${what}|i:${time - seconds};`));
}

// All that it sets, in one line: Debian 12's Node has no word for each.
const cookiesOf = (answer) => answer.headers.get('set-cookie') ?? '';

async function tryPassword(page, user, password) {
  await page.fill('#user', user);
  await page.fill('#password', password);
  await press(page, 'Sign in');
  return page.innerText('main [role=status]');
}

test('The first start makes an account for each role, prints the passwords once, and keeps only their hashes', {}, async () => {
  assert.deepEqual([...accounts.keys()], ['admin', 'monitor']);
  const users = fs.readFileSync(`${dat}/users`, 'utf8');
  assert.match(users, /^admin:admin:\$2y\$1[0-9]\$.{53}\nmonitor:monitor:\$2y\$1[0-9]\$.{53}\n$/);
  for (const password of accounts.values()) {
    assert.match(password, /^([a-z2-9]{4}-){3}[a-z2-9]{4}$/);
    assert.ok(!users.includes(password));
  }
  assert.equal(fs.statSync(`${dat}/users`).mode & 0o777, 0o600);
  assert.equal(fs.statSync(`${dat}/sessions`).mode & 0o777, 0o700);
  assert.equal(inAppliance('sh', firstPassword), '');
  assert.equal(fs.readFileSync(`${dat}/users`, 'utf8'), users);
});

test('Every page asks for the password first, then goes on to where one wanted to go', {}, async (page) => {
  for (const name of [...pages, 'applying.php']) {
    await page.goto(base() + name);
    assert.equal(await asksToSignIn(page), '', name);
    assert.equal(await page.innerText('h1'), 'library', 'it says which appliance it is');
    assert.equal(await page.inputValue('[name=next]'), name);
  }
  await page.goto(`${base()}dns.php`);
  await enterPassword(page);
  assert.equal(page.url(), `${base()}dns.php`);
});

test('After the sign-in nobody is sent to another host', {}, async (page) => {
  for (const next of ['//192.0.2.1/', 'http://192.0.2.1/', '../etc/passwd', 'signin.php']) {
    await page.goto(`${base()}dns.php`);
    await page.evaluate((value) => { document.querySelector('[name=next]').value = value; }, next);
    await enterPassword(page);
    assert.equal(page.url(), `${base()}index.php`, next);
    await press(page, 'Sign out');
  }
});

test('A wrong password, an unknown name and an empty account say the same, and slow down what follows', {}, async (page) => {
  await page.goto(`${base()}signin.php`);
  assert.match(await tryPassword(page, 'admin', 'wrong'), /^The name or the password is wrong\.$/);
  for (const [user, password] of [['admin', accounts.get('monitor')], ['admin', ''], ['nobody', accounts.get('admin')], ['', ''],
    ['admin:', 'x'], ['admin', 'x'], ['admin', 'y']]) {
    await page.evaluate(() => document.querySelectorAll('[required]').forEach((field) => { field.required = false; }));
    const said = await until(async () => {
      await page.evaluate(() => document.querySelectorAll('[required]').forEach((field) => { field.required = false; }));
      const message = await tryPassword(page, user, password);
      return !message.startsWith('Too many') && message;
    }, 'an attempt to be heard', 30);
    assert.equal(said, 'The name or the password is wrong.', user);
  }
  const counts = fs.readFileSync(attempts, 'utf8').trim().split('\n').map((line) => line.replace(/ \d+$/, ''));
  assert.deepEqual(counts, [`${countOf('admin')} 5`, `${countOf('nobody')} 1`, `${countOf('')} 1`, `${countOf('admin:')} 1`],
    'names that exist and names that do not are counted alike');
  writeAsPages(attempts, '');
  await enterPassword(page);
  assert.equal(fs.readFileSync(attempts, 'utf8'), '');
});

test('Wrong passwords of others at the same address keep the right one waiting for five seconds at most', {}, async (page) => {
  writeAsPages(attempts, `${countOf('admin')} 900 ${now()}\n`);
  await page.goto(`${base()}signin.php`);
  const began = Date.now();
  const said = await tryPassword(page, 'admin', accounts.get('admin'));
  const seconds = Number(said.match(/^Too many attempts\. Please wait (\d+) seconds?, then try again\.$/)[1]);
  assert.ok(seconds >= 1 && seconds <= 5, said);
  await until(async () => {
    await page.fill('#password', accounts.get('admin'));
    await press(page, 'Sign in');
    return await page.locator('.layout').count() > 0;
  }, 'the right password to be taken', 20);
  assert.ok(Date.now() - began < 20000, 'others wait for a minute');
  assert.match(fs.readFileSync(attempts, 'utf8'), new RegExp(`^${countOf('admin')} 900 \\d+\n$`), 'what the others tried stays counted');
  writeAsPages(attempts, '');
});

test('A browser that has signed in before waits for no wrong password but its own', {}, async (page, context) => {
  await signIn(page);
  await press(page, 'Sign out');
  const known = (await context.cookies()).find(({name}) => name === 'settings-browser');
  assert.ok(known.httpOnly && known.sameSite === 'Lax' && known.expires > now() + 300 * 86400);
  assert.match(known.value, /^[0-9a-f]{64}$/);
  const stored = fs.readFileSync(`${dat}/browsers`, 'utf8');
  assert.ok(!stored.includes(known.value), 'only its hash is stored');
  assert.equal(fs.statSync(`${dat}/browsers`).mode & 0o777, 0o600);
  const others = `${countOf('admin')} 900 ${now()}\n`;
  writeAsPages(attempts, others);
  await signIn(page);
  assert.equal(fs.readFileSync(attempts, 'utf8'), others);
  await press(page, 'Sign out');
  // Its own wrong ones make it wait for longer, and nobody else.
  assert.equal(await tryPassword(page, 'admin', 'wrong'), 'The name or the password is wrong.');
  const counted = fs.readFileSync(attempts, 'utf8');
  assert.match(counted, /\nbrowser\/[0-9a-f]{40} 1 \d+\n$/);
  writeAsPages(attempts, counted.replace(/ 1 (\d+)\n$/, ' 9 $1\n'));
  const said = await tryPassword(page, 'admin', accounts.get('admin'));
  assert.ok(Number(said.match(/wait (\d+) seconds/)[1]) > 30, said);
  // The number says nothing about another account.
  writeAsPages(attempts, `${countOf('monitor')} 900 ${now()}\n`);
  assert.match(await tryPassword(page, 'monitor', accounts.get('monitor')), /^Too many attempts/);
  writeAsPages(attempts, '');
});

test('A number that was not given out here makes no browser known', {}, async (page, context) => {
  await context.addCookies([{name: 'settings-browser', value: 'ab'.repeat(32), url: base()}]);
  writeAsPages(attempts, `${countOf('admin')} 900 ${now()}\n`);
  await page.goto(`${base()}signin.php`);
  assert.match(await tryPassword(page, 'admin', accounts.get('admin')), /^Too many attempts/);
  writeAsPages(attempts, '');
  await enterPassword(page);
  const given = (await context.cookies()).find(({name}) => name === 'settings-browser');
  assert.notEqual(given.value, 'ab'.repeat(32), 'one that was chosen elsewhere is not taken over');
});

test('Of each account the last twenty browsers are known; damage of the list makes strangers only', {}, async (page) => {
  const line = (i, name) => `${String(i).padStart(40, '0')} ${name} 1\n`;
  const many = Array.from({length: 30}, (none, i) => line(i, 'admin')).join('');
  writeAsPages(`${dat}/browsers`, `\0\xff damaged\n${many}${line(99, 'monitor')}0 admin`);
  await signIn(page);
  const lines = fs.readFileSync(`${dat}/browsers`, 'utf8').trim().split('\n');
  assert.equal(lines.filter((text) => / admin /.test(text)).length, 20);
  assert.equal(lines.filter((text) => / monitor /.test(text)).length, 1);
  assert.equal(lines.length, 21);
  assert.match(lines[0], / admin \d{10}$/, 'this one is the first');
});

test('A name that exists and one that does not take the same time, and the same waiting', {}, async () => {
  const form = await fetch(`${base()}signin.php`);
  const own = form.headers.get('set-cookie').split(';')[0];
  const token = (await form.text()).match(/name="token" value="([0-9a-f]+)"/)[1];
  const send = async (user) => {
    const began = performance.now();
    const answer = await fetch(`${base()}signin.php`, {method: 'POST', headers: {cookie: own}, body: new URLSearchParams({token, user, password: 'wrong'})});
    const text = await answer.text();
    return {milliseconds: performance.now() - began, said: text.match(/Too many attempts|password is wrong/)[0]};
  };
  const times = {admin: [], nobody: []};
  // The fastest of many: other work on the machine only adds to it. One that was not hashed would always be fast.
  const fastest = () => [Math.min(...times.admin), Math.min(...times.nobody)];
  const alike = ([known, unknown]) => known > 20 && Math.abs(known - unknown) < 0.3 * known;
  for (let i = 0; i < 15 || i < 60 && !alike(fastest()); i++) {
    for (const user of ['admin', 'nobody']) {
      writeAsPages(attempts, '');
      const {milliseconds, said} = await send(user);
      assert.equal(said, 'password is wrong');
      times[user].push(milliseconds);
    }
  }
  assert.ok(alike(fastest()), `${fastest().join(' and ')} milliseconds`);
  for (const user of ['admin', 'nobody']) {
    writeAsPages(attempts, `${countOf(user)} 5 ${now()}\n`);
    assert.equal((await send(user)).said, 'Too many attempts', user);
    writeAsPages(attempts, `${countOf(user)} 5 ${now() - 6}\n`);
    assert.equal((await send(user)).said, 'password is wrong', user);
    assert.match(fs.readFileSync(attempts, 'utf8'), new RegExp(`^${countOf(user)} 6 \\d+\n$`), user);
  }
  // The groups are few: a flood of names makes no more counts than those.
  writeAsPages(attempts, '');
  for (let i = 0; i < 80; i++) await send(`name ${i}`);
  assert.ok(fs.readFileSync(attempts, 'utf8').trim().split('\n').length <= 64);
  writeAsPages(attempts, '');
});

test('A count that cannot be kept refuses the sign-in, says so, and loses no count', {}, async (page) => {
  writeAsPages(attempts, `${countOf('monitor')} 9 ${now()}\n`);
  await page.goto(`${base()}signin.php`);
  fs.renameSync(attempts, `${attempts}.away`);
  fs.mkdirSync(attempts); // cannot be written, whoever asks
  try {
    await page.fill('#user', 'admin');
    await page.fill('#password', accounts.get('admin'));
    await press(page, 'Sign in');
    assert.match(await page.innerText('main'), /The count of failed sign-ins cannot be kept/);
  } finally {
    fs.rmdirSync(attempts);
    fs.renameSync(`${attempts}.away`, attempts);
  }
  assert.match(fs.readFileSync(attempts, 'utf8'), / 9 \d+\n$/);
  writeAsPages(attempts, '');
});

test('Who may sign in as monitor gains no attempts at the password of admin', {}, async (page) => {
  await page.goto(`${base()}signin.php`);
  await tryPassword(page, 'admin', 'wrong');
  const before = fs.readFileSync(`${dat}/attempts`, 'utf8');
  await enterPassword(page, 'monitor');
  assert.equal(fs.readFileSync(`${dat}/attempts`, 'utf8'), before);
  writeAsPages(`${dat}/attempts`, '');
});

test('A sign-in that was not sent by the form of its own browser is refused', {}, async (page, context) => {
  await page.goto(`${base()}signin.php`);
  const [{name, value}] = await context.cookies();
  assert.equal(name, 'settings-form');
  const right = {user: 'admin', password: accounts.get('admin')};
  for (const token of [{}, {token: '0'.repeat(32)}]) {
    const answer = await fetch(`${base()}signin.php`, {method: 'POST', body: new URLSearchParams({...right, ...token}),
      headers: {cookie: `${name}=${value}`}, redirect: 'manual'});
    assert.equal(answer.status, 200);
    assert.match(await answer.text(), /The form was out of date\. Please try again\./);
  }
  // Another site's form comes without the cookie, with whatever token its maker was given.
  const token = await page.inputValue('[name=token]');
  const answer = await fetch(`${base()}signin.php`, {method: 'POST', body: new URLSearchParams({...right, token}), redirect: 'manual'});
  assert.equal(answer.status, 200);
  assert.match(await answer.text(), /The form was out of date/);
  assert.doesNotMatch(cookiesOf(answer), /(^|, )settings=/);
  await page.goto(`${base()}index.php`);
  assert.equal(await asksToSignIn(page), '');
});

test('Two sign-in pages beside one another both work', {}, async (page, context) => {
  await page.goto(`${base()}signin.php`);
  const second = await context.newPage();
  await second.goto(`${base()}dns.php`);
  await enterPassword(page);
  await enterPassword(second, 'monitor');
  assert.match(await second.innerText('.account >> nth=-1'), /monitor/);
});

test('Who has not signed in makes no file, whatever is asked for', {}, async () => {
  const before = sessionFiles();
  for (const name of [...pages, 'applying.php', 'signin.php', 'signout.php', 'trial.php']) {
    for (const method of ['GET', 'POST']) {
      for (const cookie of ['', `settings=${'a'.repeat(32)}`, 'settings=../../users', 'settings-form=1; settings-browser=2']) {
        const answer = await fetch(base() + name, {method, redirect: 'manual', headers: {cookie},
          ...method === 'POST' && {body: new URLSearchParams({token: '0', user: 'admin', password: 'x'})}});
        assert.doesNotMatch(cookiesOf(answer), /(^|, )settings=/, `${method} ${name}`);
      }
    }
  }
  assert.deepEqual(sessionFiles(), before);
});

test('Who follows a link from elsewhere stays signed in', {}, async (page) => {
  await signIn(page);
  const address = `${base()}dns.php`;
  await page.goto('about:blank');
  await page.setContent(`<a href="${address}">DNS</a>`);
  await page.click('a');
  await page.waitForSelector('h1:text-is("DNS")');
});

test('Another site cannot sign anybody out', {}, async (page, context) => {
  await signIn(page);
  const {name, value} = await sessionCookie(context);
  for (const body of ['', 'token=0']) {
    await fetch(`${base()}signout.php`, {method: 'POST', body: new URLSearchParams(body), headers: {cookie: `${name}=${value}`},
      redirect: 'manual'});
  }
  await page.reload();
  assert.equal(await page.innerText('h1'), 'Overview');
});

test('Without a password hash that is strong enough no account is made, and no password printed', {}, async () => {
  fs.renameSync(`${dat}/users`, `${dat}/users.away`);
  try {
    // An engine whose crypt() knows the historic hash only.
    const {status, stdout, stderr} = spawnSync('php', ['-n', '-d', 'disable_functions=password_hash,crypt', '-r',
      'function crypt() { return "ab1234567890z"; } require $argv[1]; make_first_accounts();',
      `${web}/shared/page.php`], {encoding: 'utf8'});
    assert.equal(stdout, '');
    assert.equal(status, 1);
    assert.match(stderr, /no password hash that is strong enough/);
    assert.ok(!fs.existsSync(`${dat}/users`));
  } finally {
    fs.renameSync(`${dat}/users.away`, `${dat}/users`);
  }
});

test('Many attempts at once, each in a session of its own, are no more than one', {}, async () => {
  const forms = await Promise.all(Array.from({length: 12}, async () => {
    const form = await fetch(`${base()}signin.php`);
    const token = (await form.text()).match(/name="token" value="([0-9a-f]+)"/)[1];
    return {cookie: form.headers.get('set-cookie').split(';')[0], body: new URLSearchParams({token, user: 'admin', password: 'wrong'})};
  }));
  assert.equal(new Set(forms.map(({cookie: own}) => own)).size, 12);
  // The next one may come at once, and the one after it five seconds later.
  writeAsPages(`${dat}/attempts`, `${countOf('admin')} 7 ${now() - 60}\n`);
  const answers = await Promise.all(forms.map(async ({cookie: own, body}) => {
    const answer = await fetch(`${base()}signin.php`, {method: 'POST', body, headers: {cookie: own}});
    return answer.text();
  }));
  assert.equal(answers.filter((text) => text.includes('password is wrong')).length, 1);
  writeAsPages(`${dat}/attempts`, '');
});

test('The cookie is for the server alone, and the session gets a new identifier with the sign-in', {}, async (page, context) => {
  await signIn(page, 'monitor');
  const before = await sessionCookie(context);
  await page.goto(`${base()}signin.php`);
  await enterPassword(page);
  const after = await sessionCookie(context);
  assert.notEqual(after.value, before.value);
  assert.ok(after.httpOnly);
  assert.equal(after.sameSite, 'Lax');
  assert.equal(after.expires, -1);
  assert.ok(!fs.existsSync(`${dat}/sessions/sess_${before.value}`), 'the session before is gone');
  assert.equal(fs.statSync(`${dat}/sessions/sess_${after.value}`).mode & 0o777, 0o600);
});

test('An identifier of somebody else\'s choice is not taken', {}, async (page, context) => {
  const chosen = 'abcdefabcdefabcdefabcdefabcdefab';
  await context.addCookies([{name: 'settings', value: chosen, url: base()}]);
  await page.goto(`${base()}signin.php`);
  await enterPassword(page);
  assert.notEqual((await sessionCookie(context)).value, chosen);
  assert.ok(!fs.existsSync(`${dat}/sessions/sess_${chosen}`));
});

test('Signing out ends the session for everybody who knows its identifier', {}, async (page, context) => {
  await signIn(page);
  const {value} = await sessionCookie(context);
  await press(page, 'Sign out');
  await asksToSignIn(page);
  const answer = await fetch(`${base()}index.php`, {headers: {cookie: `settings=${value}`}});
  assert.match(await answer.text(), /action="signin\.php"/);
});

test('A quarter of an hour without activity ends the session, also while the log is followed', {},
  async (page, context) => {
    await signIn(page);
    await open(page, 'diagnostics.php');
    const file = `${dat}/sessions/sess_${(await sessionCookie(context)).value}`;
    const content = fs.readFileSync(file, 'utf8');
    const [, seen] = content.match(/seen\|i:(\d+);/);
    writeAsPages(file, content.replace(seen, String(seen - 901)));
    assert.match(await asksToSignIn(page), /after 15 minutes without activity\.$/);
    await enterPassword(page);
    assert.equal(await page.innerText('h1'), 'Diagnostics');
  });

test('Twelve hours after the sign-in the session ends, whatever was done meanwhile', {}, async (page, context) => {
  await signIn(page);
  await age(context, 'signed_in', 12 * 3600 - 60);
  await open(page, 'dns.php');
  assert.equal(await page.innerText('h1'), 'DNS');
  const file = `${dat}/sessions/sess_${(await sessionCookie(context)).value}`;
  await age(context, 'signed_in', 61);
  await open(page, 'dns.php');
  assert.match(await asksToSignIn(page), /^You were signed out because a session lasts 12 hours at most\.$/);
  assert.ok(!fs.existsSync(file));
});

test('A session of before HTTPS is not there again when HTTPS is off again', {}, async (page, context) => {
  await signIn(page);
  const {value} = await sessionCookie(context);
  const file = `${dat}/sessions/sess_${value}`;
  // As the sign-in under HTTPS finds it, and as the one after that does.
  writeAsPages(`${dat}/sessions/sess_${'e'.repeat(32)}`, fs.readFileSync(file, 'utf8').replace('https|b:0;', 'https|b:1;'));
  const other = await context.browser().newContext();
  const second = await other.newPage();
  await signIn(second, 'monitor');
  await other.close();
  assert.ok(!fs.existsSync(`${dat}/sessions/sess_${'e'.repeat(32)}`), 'one of the other mode has ended');
  assert.ok(fs.existsSync(file), 'one of this mode goes on');
});

test('What a page fetches by itself is no activity', {}, async (page, context) => {
  await signIn(page);
  const file = `${dat}/sessions/sess_${(await sessionCookie(context)).value}`;
  const content = fs.readFileSync(file, 'utf8');
  const [, seen] = content.match(/seen\|i:(\d+);/);
  writeAsPages(file, content.replace(seen, String(seen - 600)));
  await open(page, 'diagnostics.php?background=1');
  assert.match(fs.readFileSync(file, 'utf8'), new RegExp(`seen\\|i:${seen - 600};`));
  await open(page, 'diagnostics.php');
  assert.doesNotMatch(fs.readFileSync(file, 'utf8'), new RegExp(`seen\\|i:${seen - 600};`));
});

// Puts other accounts in the place of those that there are while the work is done.
async function withAccounts(change, work) {
  const users = fs.readFileSync(`${dat}/users`, 'utf8');
  writeAsPages(`${dat}/users`, change(users));
  try {
    await work();
  } finally {
    writeAsPages(`${dat}/users`, users);
    writeAsPages(`${dat}/attempts`, '');
  }
}

test('A new password ends the sessions of the old one', {}, async (page) => {
  await signIn(page, 'monitor');
  await withAccounts((users) => users.replace(/^(monitor:.*).{4}$/m, '$1abcd'), async () => {
    await open(page, 'index.php');
    assert.equal(await asksToSignIn(page), '');
  });
});

test('Hashes of an older engine are as good, and an account may have any name', {}, async (page) => {
  const hashes = [execFileSync('openssl', ['passwd', '-6', 'older secret'], {encoding: 'utf8'}).trim(),
    // What an engine without password_hash() makes.
    execFileSync('php', ['-n', '-d', 'disable_functions=password_hash', '-r', 'require $argv[1]; echo hash_password("older secret");',
      `${web}/shared/page.php`], {encoding: 'utf8'})];
  for (const hash of hashes) {
    await withAccounts((users) => `${users}shift lead:monitor:${hash}\n`, async () => {
      await page.context().clearCookies();
      await page.goto(`${base()}signin.php`);
      assert.equal(await tryPassword(page, 'shift lead', 'wrong'), 'The name or the password is wrong.');
      writeAsPages(`${dat}/attempts`, fs.readFileSync(`${dat}/attempts`, 'utf8').replace(/ 1 (\d+)\n$/, ' 9 $1\n'));
      assert.match(await tryPassword(page, 'shift lead', 'wrong'), /^Too many attempts/, hash);
      writeAsPages(`${dat}/attempts`, '');
      await page.fill('#password', 'older secret');
      await press(page, 'Sign in');
      assert.match(await page.innerText('.account >> nth=-1'), /shift lead/);
    });
  }
});

test('An account that is taken away is signed out at once', {}, async (page) => {
  await signIn(page, 'monitor');
  await withAccounts((users) => users.replace(/^monitor:.*\n/m, ''), async () => {
    await open(page, 'index.php');
    await asksToSignIn(page);
  });
});

test('Who signs in and out, and who is refused, is in the audit with the address it comes from', {}, async (page) => {
  const last = (name) => fs.readFileSync(`${dat}/${name}`, 'utf8').trim().split('\n').at(-1).split('\t').slice(1, 4);
  fs.writeFileSync(attempts, '');
  await page.goto(`${base()}signin.php`);
  await tryPassword(page, 'monitor', 'wrong');
  assert.deepEqual(last('audit.refused'), ['monitor', '10.20.0.1', 'Signing in was refused.']);
  fs.writeFileSync(attempts, '');
  await signIn(page, 'monitor');
  assert.deepEqual(last('audit.sign-ins'), ['monitor', '10.20.0.1', 'Signed in.']);
  await press(page, 'Sign out');
  assert.deepEqual(last('audit.sign-ins'), ['monitor', '10.20.0.1', 'Signed out.']);
});
