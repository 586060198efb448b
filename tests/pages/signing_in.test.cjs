// Signing in and out.
'use strict';

const assert = require('node:assert/strict');
const {execFileSync, spawnSync} = require('node:child_process');
const fs = require('node:fs');
const {accounts, applianceFolder, inAppliance, until, web} = require('./appliance.cjs');
const {asksToSignIn, base, enterPassword, open, pages, press, signIn, test} = require('./browser.cjs');

const dat = `${applianceFolder}/HTTPService/dat`;
const firstPassword = `${applianceFolder}/AppManager/bin/firstPassword.sh`;

async function cookie(context) {
  const cookies = await context.cookies();
  assert.equal(cookies.length, 1);
  return cookies[0];
}

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
  const counts = fs.readFileSync(`${dat}/attempts`, 'utf8').trim().split('\n').map((line) => line.replace(/^.*\/| \d+$/g, ''));
  assert.deepEqual(counts, ['admin 5', ' 3'], 'every account by itself, and all names that do not exist together');
  fs.writeFileSync(`${dat}/attempts`, `10.20.0.1/admin 9 ${Math.floor(Date.now() / 1000)}\n`);
  const said = await tryPassword(page, 'admin', accounts.get('admin'));
  const seconds = Number(said.match(/^Too many attempts\. Please wait (\d+) seconds, then try again\.$/)[1]);
  assert.ok(seconds > 30 && seconds <= 60, `${seconds} seconds after nine failures: a minute at most`);
  fs.writeFileSync(`${dat}/attempts`, '');
  await enterPassword(page);
  assert.equal(fs.readFileSync(`${dat}/attempts`, 'utf8'), '');
});

test('Who may sign in as monitor gains no attempts at the password of admin', {}, async (page) => {
  await page.goto(`${base()}signin.php`);
  await tryPassword(page, 'admin', 'wrong');
  const before = fs.readFileSync(`${dat}/attempts`, 'utf8');
  await enterPassword(page, 'monitor');
  assert.equal(fs.readFileSync(`${dat}/attempts`, 'utf8'), before);
  fs.writeFileSync(`${dat}/attempts`, '');
});

test('A sign-in that was not sent by the form of its own session is refused', {}, async (page, context) => {
  await page.goto(`${base()}signin.php`);
  const {name, value} = await cookie(context);
  const right = {user: 'admin', password: accounts.get('admin')};
  for (const token of [{}, {token: '0'.repeat(32)}]) {
    const answer = await fetch(`${base()}signin.php`, {method: 'POST', body: new URLSearchParams({...right, ...token}),
      headers: {cookie: `${name}=${value}`}, redirect: 'manual'});
    assert.equal(answer.status, 200);
    assert.match(await answer.text(), /The form was out of date\. Please try again\./);
  }
  await page.goto(`${base()}index.php`);
  assert.equal(await asksToSignIn(page), '');
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
  const {name, value} = await cookie(context);
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
  // The next one may come at once, and the one after it 30 seconds later.
  fs.writeFileSync(`${dat}/attempts`, `10.20.0.1/admin 7 ${Math.floor(Date.now() / 1000) - 60}\n`);
  const answers = await Promise.all(forms.map(async ({cookie: own, body}) => {
    const answer = await fetch(`${base()}signin.php`, {method: 'POST', body, headers: {cookie: own}});
    return answer.text();
  }));
  assert.equal(answers.filter((text) => text.includes('password is wrong')).length, 1);
  fs.writeFileSync(`${dat}/attempts`, '');
});

test('The cookie is for the server alone, and the session gets a new identifier with the sign-in', {}, async (page, context) => {
  await page.goto(`${base()}signin.php`);
  const before = await cookie(context);
  await enterPassword(page);
  const after = await cookie(context);
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
  assert.notEqual((await cookie(context)).value, chosen);
});

test('Signing out ends the session for everybody who knows its identifier', {}, async (page, context) => {
  await signIn(page);
  const {value} = await cookie(context);
  await press(page, 'Sign out');
  await asksToSignIn(page);
  const answer = await fetch(`${base()}index.php`, {headers: {cookie: `settings=${value}`}});
  assert.match(await answer.text(), /action="signin\.php"/);
});

test('A quarter of an hour without activity ends the session, also while the log is followed', {},
  async (page, context) => {
    await signIn(page);
    await open(page, 'diagnostics.php');
    const file = `${dat}/sessions/sess_${(await cookie(context)).value}`;
    const content = fs.readFileSync(file, 'utf8');
    const [, seen] = content.match(/seen\|i:(\d+);/);
    fs.writeFileSync(file, content.replace(seen, String(seen - 901)));
    assert.match(await asksToSignIn(page), /after 15 minutes without activity\.$/);
    await enterPassword(page);
    assert.equal(await page.innerText('h1'), 'Diagnostics');
  });

test('What a page fetches by itself is no activity', {}, async (page, context) => {
  await signIn(page);
  const file = `${dat}/sessions/sess_${(await cookie(context)).value}`;
  const content = fs.readFileSync(file, 'utf8');
  const [, seen] = content.match(/seen\|i:(\d+);/);
  fs.writeFileSync(file, content.replace(seen, String(seen - 600)));
  await open(page, 'diagnostics.php?background=1');
  assert.match(fs.readFileSync(file, 'utf8'), new RegExp(`seen\\|i:${seen - 600};`));
  await open(page, 'diagnostics.php');
  assert.doesNotMatch(fs.readFileSync(file, 'utf8'), new RegExp(`seen\\|i:${seen - 600};`));
});

// Puts other accounts in the place of those that there are while the work is done.
async function withAccounts(change, work) {
  const users = fs.readFileSync(`${dat}/users`, 'utf8');
  fs.writeFileSync(`${dat}/users`, change(users));
  try {
    await work();
  } finally {
    fs.writeFileSync(`${dat}/users`, users);
    fs.writeFileSync(`${dat}/attempts`, '');
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
      fs.writeFileSync(`${dat}/attempts`, fs.readFileSync(`${dat}/attempts`, 'utf8').replace(/ 1 (\d+)\n$/, ' 9 $1\n'));
      assert.match(await tryPassword(page, 'shift lead', 'wrong'), /^Too many attempts/, hash);
      fs.writeFileSync(`${dat}/attempts`, '');
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
