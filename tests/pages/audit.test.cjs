// The audit: who did what, from where, with which values, and what came of it.
'use strict';

const assert = require('node:assert/strict');
const {spawn} = require('node:child_process');
const fs = require('node:fs');
const {applianceFolder, asPages, fromLan, inAppliance, php, until, web, withScript, writeAsPages} = require('./appliance.cjs');
const {base, messages, open, press, sessionCookie, showCommunity, signIn, test} = require('./browser.cjs');

const folder = `${applianceFolder}/HTTPService/dat`;
const files = {changes: `${folder}/audit`, signIns: `${folder}/audit.sign-ins`, refused: `${folder}/audit.refused`};

// As the pages do, without a browser.
function write(code) {
  return inAppliance('php', '-r', `require '${web}/shared/page.php'; require '${web}/shared/audit_list.php'; ${code}`);
}

function refusedSignIn(client, user = 'admin') {
  return `write_audit('${user}', '${client}', 'Signing in was refused.', '', 'sign-in', array(), array(), 'refused: wrong name or password');`;
}

// The rows that are shown: each [who, what, outcome], as text.
async function rows(page, query = '') {
  await open(page, `diagnostics.php?live=0${query}`);
  return page.locator('.audit tbody tr').evaluateAll((all) => all.map((row) =>
    [...row.cells].slice(1).map((cell) => cell.innerText.trim().replace(/\s*\n\s*/g, ' | '))));
}

async function details(page, number) {
  const row = page.locator(`.audit tbody tr >> nth=${number}`);
  await row.locator('summary').click();
  return row.locator('li').allInnerTexts();
}

// Each test begins with an empty audit of the pages, and what was there comes back.
function auditTest(name, options, work) {
  test(name, options, async (page, context) => {
    for (const file of Object.values(files)) {
      fs.rmSync(`${file}.away`, {force: true, recursive: true});
      if (fs.existsSync(file)) fs.renameSync(file, `${file}.away`);
    }
    try {
      await work(page, context);
    } finally {
      for (const file of Object.values(files)) {
        fs.rmSync(file, {force: true, recursive: true});
        if (fs.existsSync(`${file}.away`)) fs.renameSync(`${file}.away`, file);
      }
    }
  });
}

auditTest('Every change by a page is there: who, from where, old and new value, and what came of it', {user: 'admin'}, async (page) => {
  await open(page, 'dns.php');
  await page.fill('#dnsPrimary', '10.20.0.8');
  await press(page, 'Save');
  await page.fill('#dnsPrimary', '10.20.0.9');
  await press(page, 'Save');
  assert.deepEqual((await rows(page))[0], ['admin | 10.20.0.1', 'Set the DNS servers. | Primary server 10.20.0.8 → 10.20.0.9', 'Done']);
  await open(page, 'dns.php');
  await page.fill('#dnsPrimary', '');
  await press(page, 'Save');
  assert.equal((await rows(page))[0][1], 'Set the DNS servers. | Primary server 10.20.0.9 → none');

  await open(page, 'ipv4.php');
  const name = await page.inputValue('#hostname');
  await page.fill('#hostname', 'library-2');
  await press(page, 'Save name');
  assert.deepEqual((await rows(page))[0], ['admin | 10.20.0.1', `Set the host name. | Name ${name} → library-2`, 'Done']);
  await open(page, 'ipv4.php');
  await page.fill('#hostname', name);
  await press(page, 'Save name');

  await open(page, 'port.php');
  await page.uncheck('#auto');
  await page.check('#speed-10');
  await press(page, 'Save');
  assert.deepEqual((await rows(page))[0], ['admin | 10.20.0.1', 'Set the Ethernet port. | Autonegotiation On → Off, Speed 100 Mbit/s → 10 Mbit/s',
    'Done']);
  php('set_eth2_port_settings($session, 1, 100, 1);');

  await open(page, 'ipv6.php');
  for (const [checked, text] of [[true, 'IPv6 Off → On'], [false, 'IPv6 On → Off']]) {
    await page.setChecked('#enabled', checked);
    await page.selectOption('#trial', '0');
    await press(page, 'Apply');
    assert.deepEqual((await rows(page))[0], ['admin | 10.20.0.1', `Set the IPv6 settings. | ${text}`, 'Done']);
    await open(page, 'ipv6.php');
  }

  await open(page, 'traps.php');
  await page.fill('#ip', '10.20.0.77');
  await press(page, 'Add');
  assert.deepEqual((await rows(page))[0].slice(1), ['Added the trap receiver 10.20.0.77, port 162, UDP. | Details', 'Done']);
  await open(page, 'traps.php');
  await press(page, 'Send a test trap');
  assert.deepEqual((await rows(page))[0].slice(1), ['Sent a test trap to every receiver. | udp:10.20.0.77:162 Sent', 'Done']);
  await open(page, 'traps.php');
  await page.click('main .confirm summary');
  await press(page, 'Delete 10.20.0.77');
  assert.deepEqual((await rows(page))[0].slice(1), ['Deleted the trap receiver 10.20.0.77, port 162, UDP. | Details', 'Done']);
});

auditTest('A change that was refused is there too, with the reason', {user: 'admin'}, async (page) => {
  // The appliance takes 20 of them.
  php('for ($i = 1; $i <= 20; $i++) create_snmp_trap_reg($session, 1, "10.20.0.$i", "162");');
  await open(page, 'traps.php');
  await page.fill('#ip', '10.20.0.76');
  await press(page, 'Add');
  assert.deepEqual((await rows(page))[0].slice(1), ['Tried to add the trap receiver 10.20.0.76, port 162, UDP. | Details',
    'Failed | Could not create trap registration']);
  assert.match((await details(page, 0))[0], /^Tried to add the trap receiver 10\.20\.0\.76, port 162, UDP\. createTrapRegistration transport 1, .* refused: there are 20 trap registrations already/);
  php('foreach (get_snmp_trap_regs($session) as $receiver) delete_snmp_trap_reg($session, $receiver->id);');
});

auditTest('The agent\'s community is nowhere in the audit, only that it was changed', {user: 'admin'}, async (page) => {
  for (const community of ['hidden-one', 'public']) {
    await open(page, 'snmp.php');
    await showCommunity(page);
    await page.fill('#community_name', community);
    await press(page, 'Save');
    const [[, what, outcome]] = await rows(page);
    assert.equal(what, 'Set the SNMP agent. | Read community not shown → another one | Details');
    assert.equal(outcome, 'Done');
  }
  const [versions, authTraps, read, ...more] = await details(page, 0);
  assert.match(versions, /^Set the agent's versions: .*version 1, version 2c, version 3, traps of version 1.* setSNMPVersions 3 1 2 4\b.* stored/);
  assert.match(authTraps, /^Switched the trap about a wrong community (on|off)\. setAuthTrapsEnabled (en|dis)abled stored/);
  assert.match(read, /^Set the read community\. setReadCommunity not shown stored/);
  assert.deepEqual(more, []);
  assert.doesNotMatch(await page.innerHTML('[aria-labelledby=audit]'), /hidden-one/);
  assert.doesNotMatch(fs.readFileSync(files.changes, 'utf8'), /hidden-one/);
  assert.doesNotMatch(await (await page.request.get(`${base()}audit.php`)).text(), /hidden-one/);
});

auditTest('What the services say of a change by a page is in its details and nowhere else; what no page did is an entry', {user: 'admin'},
  async (page) => {
    await open(page, 'traps.php');
    for (const ip of ['10.20.0.71', '10.20.0.72', '10.20.0.73']) {
      await page.fill('#ip', ip);
      await press(page, 'Add');
    }
    php('create_snmp_trap_reg($session, 1, "10.20.0.74", "162"); create_snmp_trap_reg($session, 7, "10.20.0.75", "162");');
    const shown = (await rows(page)).slice(0, 5);
    assert.deepEqual(shown.map(([who, what, outcome]) => [who, what.replace(' | Details', ''), outcome]), [
      ['tests', 'Tried to add the trap receiver 10.20.0.75, port 162.', 'Refused | transport 7 is neither 1 (UDP) nor 2 (TCP)'],
      ['tests', 'Added the trap receiver 10.20.0.74, port 162, UDP.', 'Done'],
      ...['10.20.0.73', '10.20.0.72', '10.20.0.71'].map((ip) =>
        ['admin | 10.20.0.1', `Added the trap receiver ${ip}, port 162, UDP.`, 'Done'])]);
    for (const [number, ip] of [[2, '10.20.0.73'], [3, '10.20.0.72'], [4, '10.20.0.71']]) {
      const operations = await details(page, number);
      assert.equal(operations.length, 1, ip);
      assert.match(operations[0], new RegExp(`createTrapRegistration transport 1, address ${ip}, port 162, id \\S+ stored`));
    }
    php('foreach (get_snmp_trap_regs($session) as $receiver) delete_snmp_trap_reg($session, $receiver->id);');
    assert.equal((await rows(page))[0][1], 'Deleted the trap receiver 10.20.0.74, port 162, UDP. | Details',
      'by its address, which the services do not say');
  });

auditTest('What another program did is there after many other operations of the services', {user: 'admin'}, async (page) => {
  php(`create_snmp_trap_reg($session, 7, "10.20.0.201", "162"); for ($i = 0; $i < 110; $i++) create_snmp_trap_reg($session, 7, "10.20.0.202", "162");`);
  const table = await (await page.request.get(`${base()}audit.php?subject=traps&user=tests`)).text();
  assert.equal(table.match(/"Tried to add the trap receiver 10\.20\.0\.201, port 162\."/g)?.length, 1);
  assert.equal(table.match(/"Tried to add the trap receiver 10\.20\.0\.202, port 162\."/g).length, 110);
});

auditTest('Whoever changes the agent is named, whoever was served before', {user: 'admin'}, async (page, context) => {
  const other = await context.browser().newContext();
  const monitor = await other.newPage();
  await signIn(monitor, 'monitor');
  await open(page, 'snmp.php');
  // More often than the interpreter has processes.
  for (let i = 0; i < 12; i += 1) await open(monitor, 'traps.php');
  await other.close();
  await page.setChecked('#trap2', !await page.isChecked('#trap2'));
  await press(page, 'Save');
  const [first] = await rows(page);
  assert.equal(first[0], 'admin | 10.20.0.1');
  assert.equal((await details(page, 0)).length, 3, 'the services name the same user');
  await open(page, 'snmp.php');
  await page.uncheck('#trap2');
  await press(page, 'Save');
});

auditTest('Filters by user, subject and outcome, and pages, without scripts', {user: 'admin', javaScriptEnabled: false}, async (page) => {
  write(`for ($i = 1; $i <= 14; $i++) write_audit('admin', '10.20.0.1', 'Set the DNS servers.', "number $i", 'dns');
    write_audit('monitor', '10.20.0.5', 'Signed in.', '', 'sign-in'); ${refusedSignIn('10.20.0.6')}
    write_audit('admin', '10.20.0.1', 'IPv4 settings undone', '', 'ipv4', array(), array(), 'undone: asked for by admin');`);
  await open(page, 'diagnostics.php');
  await page.selectOption('#audit-subject', 'dns');
  await press(page, 'Show');
  assert.equal(await page.locator('.audit tbody tr').count(), 10);
  assert.match(await page.innerText('.pager'), /14 entries, page 1 of 2/);
  assert.match(await page.innerText('.audit tbody tr >> nth=0'), /number 14$/);
  await page.click('text=Older');
  assert.equal(await page.locator('.audit tbody tr').count(), 4);
  assert.match(await page.innerText('.audit tbody tr >> nth=3'), /number 1$/);
  assert.equal(await page.inputValue('#audit-subject'), 'dns');
  await page.click('text=Newer');
  assert.match(await page.innerText('.pager'), /page 1 of 2/);
  await page.selectOption('#audit-subject', '');
  await page.selectOption('#audit-user', 'monitor');
  await press(page, 'Show');
  assert.match((await page.locator('.audit .user').allInnerTexts()).join(), /^monitor\s+10\.20\.0\.5$/);
  assert.equal((await rows(page, '&outcome=undone&subject=ipv4')).length, 1);
  assert.deepEqual((await rows(page, '&outcome=refused&subject=sign-in'))[0],
    ['admin | 10.20.0.6', 'Signing in was refused.', 'Refused | wrong name or password']);
});

auditTest('Refused sign-ins of one address are one line with their count, and what is no account\'s name is not written down', {user: 'admin'},
  async (page) => {
    write(`for ($i = 0; $i < 40; $i++) { ${refusedSignIn('10.20.0.6')} } ${refusedSignIn('10.20.0.7', 'my password')}`);
    assert.equal(fs.readFileSync(files.refused, 'utf8').trim().split('\n').length, 2);
    assert.doesNotMatch(fs.readFileSync(files.refused, 'utf8'), /my password/);
    const shown = await rows(page, '&outcome=refused&subject=sign-in');
    assert.deepEqual(shown[0], ['Not known | 10.20.0.7', 'Signing in was refused.', 'Refused | wrong name or password']);
    assert.match(shown[1][1], /^Signing in was refused\. 40 times since \d{4}-\d\d-\d\d \d\d:\d\d:\d\d\.$/);
  });

auditTest('Who does not know the own password is there, for both forms of the page Account', {}, async (page) => {
  await signIn(page, 'admin', 'account.php');
  const good = 'horse staple battery';
  for (const [old, next, again, button] of [['old_password', 'new_password', 'password_again', 'Change password'],
    ['own_password', 'other_password', 'other_password_again', 'Set password']]) {
    await page.fill(`#${old}`, 'my secret guess');
    await page.fill(`#${next}`, good);
    await page.fill(`#${again}`, good);
    await press(page, button);
  }
  const about = 'Changing the password of';
  const [other, own, ...more] = await rows(page, '&outcome=refused&subject=account');
  assert.deepEqual(own, ['admin | 10.20.0.1', `${about} admin was refused.`, 'Refused | wrong own password']);
  assert.deepEqual(other.slice(0, 2), ['admin | 10.20.0.1', `${about} monitor was refused.`]);
  assert.match(other[2], /^Refused \| (too many attempts|wrong own password)$/, 'by the time that has passed');
  assert.deepEqual(more, []);
  assert.doesNotMatch(fs.readFileSync(files.refused, 'utf8'), /secret/);
});

auditTest('What the role monitor was refused is there, and however often it asks pushes no change out', {user: 'monitor'}, async (page, context) => {
  write(`write_audit('admin', '10.20.0.1', 'Set the DNS servers.', '', 'dns');`);
  const {name, value} = await sessionCookie(context);
  await open(page, 'account.php');
  const token = await page.getAttribute('[name=token] >> nth=0', 'value');
  const ask = (file, values) => fetch(base() + file, {method: 'POST', headers: {cookie: `${name}=${value}`}, redirect: 'manual',
    body: new URLSearchParams({token, ...values})});
  for (let i = 0; i < 3; i += 1) assert.equal((await ask('dns.php', {change: 'dns', dnsPrimary: '10.20.0.66'})).status, 403);
  assert.equal((await ask('account.php', {change: 'other', name: 'admin'})).status, 403);
  const shown = await rows(page, '&subject=rights');
  assert.deepEqual(shown.map(([who, what, outcome]) => [who, what.replace(/ since .*/, ''), outcome]), [
    ['monitor | 10.20.0.1', 'Changing the password of another account was refused.', 'Refused | the role may only look'],
    ['monitor | 10.20.0.1', 'A request of the page "DNS" was refused. 3 times', 'Refused | the role may only look']]);
  assert.equal(fs.readFileSync(files.changes, 'utf8').trim().split('\n').length, 1);
});

auditTest('Of a test to many receivers those that failed stand first, and what has no room is counted', {user: 'admin'}, async (page) => {
  const receivers = Array.from({length: 20}, (_, i) => `10.20.0.${i + 1}`);
  php(receivers.map((ip) => `create_snmp_trap_reg($session, 1, "${ip}", "162");`).join(''));
  try {
    const lines = receivers.map((ip) => `udp:${ip}:162 2c ${ip.endsWith('.17') ? 'refused' : 'sent'}`).reverse();
    await withScript('testTrapResults.sh', `printf '%s\\n' "time $(date +%s)" '${lines.join("' '")}'`, async () => {
      await open(page, 'traps.php');
      await press(page, 'Send a test trap');
    });
    const [[, what]] = await rows(page);
    const values = what.split(' | ')[1].split(', ');
    assert.equal(values[0], 'udp:10.20.0.17:162 Refused');
    const named = values.slice(1, -1);
    assert.deepEqual(named, named.map((value) => value.match(/^udp:10\.20\.0\.\d+:162 Sent$/)[0]).sort(), 'whole, and in order');
    assert.ok(named.length >= 5);
    assert.equal(values.at(-1), `and ${20 - 1 - named.length} more`);
  } finally {
    php('foreach (get_snmp_trap_regs($session) as $receiver) delete_snmp_trap_reg($session, $receiver->id);');
  }
});

auditTest('The last name that is tried hides none of those before', {user: 'admin'}, async (page) => {
  write(`${refusedSignIn('10.20.0.6')} ${refusedSignIn('10.20.0.6')} ${refusedSignIn('10.20.0.6', 'monitor')} ${refusedSignIn('10.20.0.6', 'nobody')}
    ${refusedSignIn('10.20.0.6')}`);
  const shown = await rows(page, '&outcome=refused&subject=sign-in');
  assert.deepEqual(shown.map(([who, what]) => [who, what.replace(/ since .*/, '')]), [
    ['admin | 10.20.0.6', 'Signing in was refused. 3 times'], ['Not known | 10.20.0.6', 'Signing in was refused.'],
    ['monitor | 10.20.0.6', 'Signing in was refused.']]);
  assert.equal((await rows(page, '&user=admin&outcome=refused&subject=sign-in')).length, 1);
});

auditTest('A client with a whole network of IPv6 addresses pushes out nobody else\'s refused sign-ins', {user: 'admin'}, async (page) => {
  write(`${refusedSignIn('10.20.0.6')} ${refusedSignIn('2001:db8:21::1')}
    for ($i = 1; $i <= 700; $i++) write_audit('admin', '2001:db8:20::' . dechex($i), 'Signing in was refused.', '', 'sign-in', array(), array(),
      'refused: wrong name or password');`);
  const shown = await rows(page, '&outcome=refused&subject=sign-in');
  assert.deepEqual(shown.map(([who]) => who), ['admin | 2001:db8:20::2bc', 'admin | 2001:db8:21::1', 'admin | 10.20.0.6']);
  assert.match(shown[0][1], /^Signing in was refused\. 700 times since /);
});

auditTest('A flood of refused sign-ins from everywhere pushes no change and no sign-in out, and has its bounds', {user: 'admin'}, async (page) => {
  write(`write_audit('admin', '10.20.0.1', 'Set the DNS servers.', 'before', 'dns'); write_audit('admin', '10.20.0.1', 'Signed in.', '', 'sign-in');
    for ($i = 0; $i < 700; $i++) { write_audit('admin', '10.21.' . (int) ($i / 200) . '.' . $i % 200, 'Signing in was refused.',
      str_repeat('long ', 500), 'sign-in', array(), array(), 'refused: ' . str_repeat('reason ', 500)); }`);
  const text = fs.readFileSync(files.refused, 'utf8');
  assert.equal(text.trim().split('\n').length, 600);
  assert.ok(text.split('\n').every((line) => line.length < 2048));
  assert.equal((await rows(page, '&subject=dns')).length, 1);
  assert.equal((await rows(page, '&subject=sign-in&outcome=done')).length, 1);
});

auditTest('Of the changes the newest 500 are kept, whatever stood in the file', {user: 'admin'}, async (page) => {
  writeAsPages(files.changes, Buffer.alloc(3000000, 'x'));
  write(`for ($i = 1; $i <= 520; $i++) write_audit('admin', '10.20.0.1', 'Set the DNS servers.', "number $i", 'dns');`);
  const lines = fs.readFileSync(files.changes, 'utf8').trim().split('\n');
  assert.equal(lines.length, 500);
  assert.match(lines[0], /number 21\t/);
  assert.match(lines.at(-1), /number 520\t/);
  await open(page, 'diagnostics.php?subject=dns');
  assert.match(await page.innerText('.pager'), /500 entries, page 1 of 50/);
});

auditTest('Damaged lines are left out and said, and a line that was cut off swallows no other', {user: 'admin'}, async (page) => {
  write(`for ($i = 1; $i <= 3; $i++) write_audit('admin', '10.20.0.1', 'Set the DNS servers.', "number $i", 'dns');`);
  const [one, two, three] = fs.readFileSync(files.changes, 'utf8').split('\n');
  writeAsPages(files.changes, `${one}\n${two.replace('number 2', 'number 9')}\n\n\xff\x00\t\t\n${three.slice(0, -12)}`, 'latin1');
  write(`write_audit('admin', '10.20.0.1', 'Set the DNS servers.', 'number 4', 'dns');`);
  const shown = await rows(page, '&subject=dns');
  assert.deepEqual(shown.map(([, , outcome]) => outcome), ['Done | number 4', 'Done | number 1']);
  assert.match(await page.innerText('[aria-labelledby=audit]'), /3 lines of the audit are damaged and are left out\./);
  // What an earlier version has written is none of them.
  writeAsPages(files.changes, '1790000000\tadmin\t10.20.0.1\tIPv4 settings kept\tAddress 10.20.0.7\n');
  assert.deepEqual(await rows(page, '&subject=other&user=admin'), [['admin | 10.20.0.1', 'IPv4 settings kept', 'Done | Address 10.20.0.7']]);
});

auditTest('Many writers at once lose no line, and one that is killed damages none but its own', {user: 'admin'}, async (page) => {
  const writer = `require '${web}/shared/page.php'; for ($i = 0; $i < 10; $i++)
    write_audit('admin', '10.20.0.1', 'Set the DNS servers.', "writer $argv[1] line $i", 'dns');`;
  const start = (number) => spawn(asPages[0], [...asPages.slice(1), 'php', '-r', writer, String(number)], {stdio: 'ignore'});
  await Promise.all(Array.from({length: 6}, (_, number) => new Promise((resolve) => start(number).on('exit', resolve))));
  assert.equal(new Set(fs.readFileSync(files.changes, 'utf8').match(/writer \d line \d/g)).size, 60);
  for (let round = 0; round < 10; round += 1) {
    const victim = start(9);
    const ended = new Promise((resolve) => victim.on('exit', resolve));
    await new Promise((resolve) => setTimeout(resolve, 30 + 7 * round));
    victim.kill('SIGKILL');
    await ended;
  }
  write(`write_audit('admin', '10.20.0.1', 'Set the DNS servers.', 'the last one', 'dns');`);
  assert.equal((await rows(page, '&subject=dns'))[0][2], 'Done | the last one');
  assert.equal(await page.locator('.audit tbody tr').count(), 10);
});

const lost = 'What was done could not be written into the audit.';

// Makes a change, and returns what the page says.
async function changeDns(page, server) {
  await open(page, 'dns.php');
  await page.fill('#dnsPrimary', server);
  await press(page, 'Save');
  return messages(page);
}

auditTest('A change is made although the audit cannot be written, and the page says so', {user: 'admin'}, async (page) => {
  // A full disk; a folder in its place; somebody who does not let go of the lock.
  fs.symlinkSync('/dev/full', files.changes);
  assert.match(await changeDns(page, '10.20.0.8'), new RegExp(`^The DNS servers are set\\.[^]*${lost}`));
  assert.match(await page.inputValue('#dnsPrimary'), /^10\.20\.0\.8$/);
  await open(page, 'dns.php');
  assert.equal(await messages(page), '', 'it is said once');
  fs.rmSync(files.changes);
  fs.mkdirSync(files.changes);
  assert.match(await changeDns(page, '10.20.0.9'), new RegExp(lost));
  assert.match(await messages(page), /^The DNS servers are set/);
  fs.rmdirSync(files.changes);
  const holder = spawn('flock', [`${folder}/audit.lock`, 'sleep', '30'], {detached: true});
  try {
    await until(() => {
      try {
        fromLan('flock', '-n', `${folder}/audit.lock`, 'true');
        return false;
      } catch {
        return true;
      }
    }, 'the lock to be held');
    assert.match(await changeDns(page, '10.20.0.8'), new RegExp(lost));
  } finally {
    process.kill(-holder.pid);
  }
  assert.equal(await changeDns(page, ''), 'The DNS servers are removed.');
  assert.equal((await rows(page))[0][1], 'Set the DNS servers. | Primary server 10.20.0.8 → none');
});

auditTest('A full disk leaves no part of a line behind, and the lines of before', {}, async () => {
  write(`write_audit('admin', '10.20.0.1', 'Set the DNS servers.', 'before', 'dns');`);
  const before = fs.readFileSync(files.changes, 'utf8');
  // No file may become longer than a block of 512 bytes: the next line does not fit.
  fs.appendFileSync(files.changes, before.repeat(Math.floor(500 / before.length) - 1));
  const full = fs.readFileSync(files.changes, 'utf8');
  assert.ok(full.length <= 512 && full.length + before.length > 512);
  const said = inAppliance(...asPages, 'sh', '-c', `trap '' XFSZ; ulimit -f 1; exec php -r "$0"`, `require '${web}/shared/page.php';
    echo write_audit('admin', '10.20.0.1', 'Set the DNS servers.', 'behind', 'dns') ? 'written' : 'not written';`);
  assert.match(said, /not written/);
  assert.equal(fs.readFileSync(files.changes, 'utf8'), full);
});

// The cells of a file of the kind that the download is.
function parsed(text) {
  assert.ok(text.endsWith('\r\n'));
  return text.slice(0, -2).split('\r\n').map((line) =>
    line.match(/"(?:[^"]|"")*"/g).map((cell) => cell.slice(1, -1).replace(/""/g, '"')));
}

auditTest('The audit is downloaded as CSV, filtered, and no cell is a formula', {user: 'admin'}, async (page, context) => {
  const {name, value} = await sessionCookie(context);
  const headers = {cookie: `${name}=${value}`};
  write(`write_audit('admin', '10.20.0.1', '=1+1', 'He said "no", twice', 'backup', array('Old' => '-1', 'Same' => 'a'), array('Old' => '@x', 'Same' => 'a'));
    write_audit('monitor', '10.20.0.5', '+2', '', 'backup', array(), array(), 'failed: -3');`);
  const answer = await fetch(`${base()}audit.php?subject=backup`, {headers});
  assert.match(answer.headers.get('content-type'), /^text\/csv/);
  assert.match(answer.headers.get('content-disposition'), /^attachment; filename="audit\.csv"$/);
  const bytes = Buffer.from(await answer.arrayBuffer());
  assert.equal(bytes.subarray(0, 3).toString('hex'), 'efbbbf', 'the mark of the encoding');
  const [head, second, first, ...more] = parsed(bytes.subarray(3).toString());
  assert.deepEqual(head, ['Time (UTC)', 'User', 'From', 'Subject', 'What', 'Values', 'Outcome', 'Reason', 'How often', 'Operations']);
  assert.match(first[0], /^\d{4}-\d\d-\d\d \d\d:\d\d:\d\d$/);
  assert.deepEqual(first.slice(1), ['admin', '10.20.0.1', 'Backup', "'=1+1", 'Old -1 → @x', 'done', 'He said "no", twice', '1', '']);
  assert.deepEqual(second.slice(1), ['monitor', '10.20.0.5', 'Backup', "'+2", '', 'failed', "'-3", '1', '']);
  assert.deepEqual(more, []);
  const anonymous = await fetch(`${base()}audit.php`);
  assert.match(await anonymous.text(), /action="signin\.php"/);
});

auditTest('What the audit lacks is said on the page and in the file', {user: 'admin'}, async (page) => {
  write(`write_audit('admin', '10.20.0.1', 'Set the DNS servers.', 'kept', 'dns');`);
  const services = 'The audit trail of the management services cannot be read: what they did without a page is missing.';
  const own = 'What the pages have written down cannot all be read: missing are the sign-ins.';
  const damaged = 'One line of the audit is damaged and is left out.';
  fs.rmSync(files.signIns, {force: true});
  fs.mkdirSync(files.signIns);
  fs.appendFileSync(files.changes, 'damaged\n');
  await withScript('auditTrail.sh', 'exit 1', async () => {
    assert.equal((await rows(page, '&subject=dns')).length, 1);
    const said = await page.innerText('[aria-labelledby=audit]');
    const [, ...cells] = parsed(await (await page.request.get(`${base()}audit.php?subject=dns`)).text());
    assert.deepEqual(cells.map((row) => row[4]), [services, own, damaged, 'Set the DNS servers.']);
    assert.equal(cells[0][6], 'failed');
    for (const sentence of [services, own, damaged]) assert.ok(said.includes(sentence), sentence);
  });
  fs.rmdirSync(files.signIns);
  fs.rmSync(files.changes);
  const [, ...cells] = parsed(await (await page.request.get(`${base()}audit.php?subject=dns`)).text());
  assert.deepEqual(cells, [], 'what is not there yet lacks nothing');
});

auditTest('The role monitor reads the audit too', {user: 'monitor'}, async (page) => {
  write(`write_audit('admin', '10.20.0.1', 'Set the DNS servers.', 'seen by all', 'dns');`);
  assert.equal((await rows(page, '&subject=dns')).length, 1);
});
