// The page Diagnostics but for the audit, which audit.test.cjs has, and the test of the trap receivers.
'use strict';

const assert = require('node:assert/strict');
const {execFileSync, spawn} = require('node:child_process');
const fs = require('node:fs');
const {applianceFolder, datagramsTo, fromLan, inAppliance, php, traceLog, until, web, withScript,
  writeAsPages} = require('./appliance.cjs');
const {base, errorOf, messages, open, pages, press, sessionCookie, test} = require('./browser.cjs');

const scripts = `${applianceFolder}/AppManager/bin`;

async function cookieOf(context) {
  const {name, value} = await sessionCookie(context);
  return `${name}=${value}`;
}

function unfoldTrace(page) {
  return page.click('summary:has-text("Trace log")');
}

test('The page is at most three screens high before anything is unfolded', {user: 'admin', viewport: {width: 1280, height: 800}},
  async (page) => {
    // As many entries as a page of the audit has, with all values that a change can have.
    inAppliance('php', '-r', `require '${web}/shared/page.php'; for ($i = 0; $i < 12; $i++)
      write_audit('admin', '2001:db8:20::1234:5678:9abc', 'Static IPv6 address undone', '', 'ipv6', array('Static address' => 'On',
        'Address' => '2001:db8:20::1234:5678:9abc', 'Prefix length' => '64', 'Gateway' => 'fe80::1234:5678:9abc:def0'),
        array('Static address' => 'Off', 'Address' => '2001:db8:20::1', 'Prefix length' => '48', 'Gateway' => 'fe80::1'),
        'undone: nobody was back under the new settings in time');`);
    await open(page, 'diagnostics.php');
    assert.equal(await page.locator('.audit tbody tr').count(), 10);
    const height = await page.evaluate(() => document.documentElement.scrollHeight);
    assert.ok(height <= 3 * 800, `${height} pixels`);
    assert.equal(await page.locator('main details[open]').count(), 0);
  });

test('The trace log is folded, and has the calls of the module, each with its lines', {user: 'admin'}, async (page) => {
  php('get_eth2_port_settings($session);');
  await open(page, 'diagnostics.php?live=scripts');
  assert.ok(!await page.isVisible('#filter'));
  await unfoldTrace(page);
  const call = page.locator('[data-call]:has(> summary:has-text("get_eth2_port_settings")) >> nth=0');
  assert.ok(!await call.locator('.log').isVisible());
  await call.locator('summary').click();
  const lines = (await call.locator('.log').innerText()).trim().split('\n');
  assert.match(lines[0], /Entering get_eth2_port_settings:<>$/);
  assert.match(lines.at(-1), /Exiting get_eth2_port_settings:<>$/);
  for (const line of lines) assert.ok(traceLog().includes(`${line}\n`), line);
});

test('Calls that mix are told apart by their names, and one that has not ended says so', {}, async () => {
  const line = (text) => `TRACE[2026-11-22 04:16:09.704 +0000]:${text}:<>`;
  const log = ['Exiting earlier', 'Entering one', 'Entering two', 'of two', 'Exiting two', 'of one', 'Exiting one', 'Entering three',
    'Could not set network settings (dhcp off).'].map(line);
  const calls = JSON.parse(inAppliance('php', '-r',
    `require '${web}/shared/page.php'; echo json_encode(calls_of(json_decode($argv[1])));`, JSON.stringify(log)));
  assert.deepEqual(calls.map((call) => [call.name, call.lines.length, Boolean(call.failed), call.left]), [
    ['The rest of an earlier call', 1, false, true], ['one', 3, false, true], ['two', 3, false, true], ['three', 2, true, false]]);
});

test('The trace log is followed, an unfolded call stays so, and following stops when asked to', {user: 'admin'}, async (page) => {
  php('is_ipv6_enabled();');
  await open(page, 'diagnostics.php');
  await unfoldTrace(page);
  const call = page.locator('[data-call]:has(> summary:has-text("is_ipv6_enabled")) >> nth=0');
  await call.locator('summary').click();
  php('set_eth2_port_settings($session, 1, 4242, 1);');
  await page.waitForSelector('[data-call] > summary:has-text("set_eth2_port_settings")');
  assert.ok(await call.locator('.log').isVisible());
  await page.click('text=Stop following');
  await page.waitForSelector('text=Follow');
  assert.equal(await page.locator('[data-poll]').count(), 0);
});

test('Only the calls that failed are shown when that is asked for', {user: 'admin'}, async (page) => {
  php('set_eth2_port_settings($session, 1, 4242, 1);');
  await open(page, 'diagnostics.php?live=0');
  await page.check('#errors');
  await page.waitForURL(/errors=1/);
  await page.waitForFunction(() => {
    const calls = [...document.querySelectorAll('[data-call]')];
    return calls.length > 0 && calls.every((call) => call.querySelector('.state.bad'));
  });
  assert.match(await page.textContent('#log'), /INVALID ETH2 SPEED PARAMETER/);
  await page.fill('#filter', 'entering set_eth2');
  await page.waitForFunction(() => /^(TRACE.*Entering set_eth2_port_settings:<>\s*)+$/.test(document.querySelector('#log').innerText));
  php('set_eth2_port_settings($session, 1, 100, 1);');
});

test('A call that got no answer has failed, and where none says so that is all that is said', {user: 'admin'}, async (page) => {
  const log = `${web}/logs/php_extension.log`;
  const away = `${web}/logs/away.log`;
  const {uid, gid} = fs.statSync(log);
  fs.renameSync(log, away);
  try {
    fs.writeFileSync(log, 'TRACE[x]:Entering is_ipv6_enabled:<>\nTRACE[x]:Exiting is_ipv6_enabled:<>\n');
    fs.chownSync(log, uid, gid);
    await open(page, 'diagnostics.php?live=0&errors=1');
    assert.equal(await page.innerText('#log'), 'No call says that it has failed. Not all do: what could not be read is said on its page.');
    await withScript('ipv4Manager.sh', 'exit 1', async () => php('@get_eth2_port_settings($session); @get_network_hostname();'));
    await open(page, 'diagnostics.php?live=0&errors=1');
    const names = await page.locator('[data-call] > summary .address').allInnerTexts();
    assert.deepEqual(names.sort(), ['get_eth2_port_settings', 'get_network_hostname']);
  } finally {
    fs.rmSync(log);
    fs.renameSync(away, log);
  }
});

test('The trace log is filtered as one types, and whatever is typed is only text', {user: 'admin'}, async (page) => {
  await open(page, 'diagnostics.php');
  await unfoldTrace(page);
  await page.fill('#filter', 'eNTering GET_FW');
  await page.waitForFunction(() => {
    const lines = document.querySelector('#log .log.long')?.innerText.trim().split('\n') ?? [];
    return lines.length > 0 && lines.every((line) => line.includes('Entering get_fw'));
  });
  assert.match(page.url(), /filter=eNTering\+GET_FW/);
  await page.fill('#filter', '.*[');
  await page.waitForSelector('#log >> text=No line has this text.');
});

test('A trace log that cannot be read is said, and is no fault', {user: 'admin'}, async (page) => {
  fs.renameSync(`${web}/logs/php_extension.log`, `${web}/logs/away.log`);
  fs.mkdirSync(`${web}/logs/php_extension.log`);
  try {
    await open(page, 'diagnostics.php?live=0');
    assert.match(await page.innerText('#log'), /trace log cannot be read/);
    assert.equal(await messages(page), '');
    const answer = await page.request.get(`${base()}trace.php`);
    assert.equal(answer.status(), 404);
  } finally {
    fs.rmdirSync(`${web}/logs/php_extension.log`);
    fs.renameSync(`${web}/logs/away.log`, `${web}/logs/php_extension.log`);
  }
});

test('The trace log is downloaded as a file', {user: 'admin'}, async (page, context) => {
  const answer = await fetch(`${base()}trace.php`, {headers: {cookie: await cookieOf(context)}});
  assert.match(answer.headers.get('content-disposition'), /^attachment; filename="trace\.log"$/);
  assert.match(answer.headers.get('content-type'), /^text\/plain/);
  const text = await answer.text();
  assert.ok(traceLog().endsWith(text) || traceLog().includes(text.trim().split('\n').at(-1)));
  assert.match(text, /Entering get_network_hostname|Entering get_fw_settings/);
});

// Runs code of the pages with another trace log, and returns what it prints.
function withTraceLog(text, code, ...options) {
  const folder = fs.mkdtempSync('/tmp/trace-');
  fs.mkdirSync(`${folder}/HTTPService/lighttpd/logs`, {recursive: true});
  const log = `${folder}/HTTPService/lighttpd/logs/php_extension.log`;
  fs.writeFileSync(log, text);
  try {
    return execFileSync('php', [...options, '-r', `define('APPLIANCE_FOLDER', '${folder}'); require '${web}/shared/page.php';
      $admin = new Session(); $admin->role = 'admin'; $monitor = new Session(); $monitor->role = 'monitor'; ${code}`],
    {encoding: 'utf8', maxBuffer: 1e8});
  } finally {
    fs.rmSync(folder, {recursive: true});
  }
}

test('A long trace log is downloaded with 8 MB of memory', {}, async () => {
  const line = 'TRACE[2026-11-22 04:16:09.704 +0000]:Entering get_network_hostname:<>\n';
  const said = withTraceLog(line.repeat(100000), 'print_trace(open_end_of_trace(TRACE_DOWNLOAD_BYTES), $monitor);', '-d', 'memory_limit=8M');
  assert.ok(said === line.repeat(Math.floor(4194304 / line.length)), `${said.length} characters: ${said.slice(0, 200)}`);
});

test('A trace log that is cut off, begun anew, goes or grows while it is read ends there, and is no fault', {}, async () => {
  const text = Array.from({length: 1000}, (_, i) => `TRACE[x]:line ${i}:<>\n`).join('');
  for (const [fault, expected] of [
    ['fclose(fopen(TRACE_LOG, "wb"));', /^(TRACE\[x\]:line \d+:<>\n)+(TRACE.*)?$/],
    ['rename(TRACE_LOG, TRACE_LOG . ".1"); file_put_contents(TRACE_LOG, "another\\n");', /line 999:<>\n$/],
    ['unlink(TRACE_LOG);', /line 999:<>\n$/],
    ['file_put_contents(TRACE_LOG, str_repeat("grown\\n", 100), FILE_APPEND);', /line 999:<>\n$/]]) {
    const said = withTraceLog(text, `$trace = open_end_of_trace(TRACE_BYTES); echo next_of_trace($trace, $admin); ${fault} print_trace($trace, $admin);`);
    assert.ok(said.startsWith('TRACE[x]:line 0:<>\n'), fault);
    assert.match(said, expected, fault);
    assert.doesNotMatch(said, /grown|another/, fault);
  }
});

test('A line without an end and one of a megabyte are no fault, and show no more than they may', {}, async () => {
  const print = (text, who) => withTraceLog(text, `print_trace(open_end_of_trace(TRACE_DOWNLOAD_BYTES), ${who});`);
  const long = `TRACE[x]:setting community name::<${'s3cret'.repeat(200000)}>\nTRACE[x]:next:<>\nTRACE[x]:SNMP community:<s3cr`;
  assert.equal(print(long, '$monitor'), 'TRACE[x]:setting community name::<not shown>\nTRACE[x]:next:<>\nTRACE[x]:SNMP community:<not shown>\n');
  assert.ok(print(long, '$admin') === long);
  // It begins in the middle of a line that is longer than all that is looked at.
  assert.equal(print(`${'s3cret'.repeat(1000000)}\nTRACE[x]:next:<>\n`, '$monitor'), 'TRACE[x]:next:<>\n');
  assert.equal(print('', '$admin'), '');
});

test('The read community in the trace log is for the role admin alone, the filter included', {user: 'monitor'}, async (page, context) => {
  php('$settings = get_snmp_settings($session); $settings->community_name = "s3cret-word"; set_snmp_settings($session, $settings);');
  try {
    assert.ok(traceLog().includes('setting community name::<s3cret-word>'));
    await open(page, 'diagnostics.php?live=0&filter=community');
    assert.match(await page.innerText('#log'), /setting community name::<not shown>/);
    assert.doesNotMatch(await page.content(), /s3cret-word/);
    await open(page, 'diagnostics.php?live=0&filter=s3cret');
    assert.equal(await page.innerText('#log'), 'No line has this text.');
    const headers = {cookie: await cookieOf(context)};
    for (const name of ['trace.php', 'audit.php', 'diagnostics.php']) {
      assert.doesNotMatch(await (await fetch(base() + name, {headers})).text(), /s3cret-word/, name);
    }
  } finally {
    php('$settings = get_snmp_settings($session); $settings->community_name = "public"; set_snmp_settings($session, $settings);');
  }
});

test('Who is not signed in has the module do nothing, however often and whatever is asked for', {}, async () => {
  const form = await fetch(`${base()}signin.php`);
  const token = ((await form.text()).match(/name="token" value="([0-9a-f]+)"/) || [])[1] || '';
  const cookie = (form.headers.get('set-cookie') || '').split(';')[0];
  const before = traceLog();
  const names = [...pages, 'applying.php', 'trial.php', 'signin.php', 'signout.php', 'audit.php', 'trace.php'];
  for (let round = 0; round < 3; round += 1) {
    for (const name of names) {
      for (const suffix of ['', '?background=1']) {
        await fetch(base() + name + suffix, {redirect: 'manual'});
        await fetch(base() + name + suffix, {redirect: 'manual', method: 'POST', body: new URLSearchParams({change: 'test'})});
      }
    }
    const refused = await fetch(`${base()}signin.php`, {method: 'POST', headers: {cookie}, redirect: 'manual',
      body: new URLSearchParams({token, user: 'admin', password: 'wrong'})});
    assert.match(await refused.text(), /password is wrong|Too many|out of date/);
  }
  assert.ok(traceLog() === before, traceLog().slice(before.length));
  writeAsPages(`${applianceFolder}/HTTPService/dat/attempts`, '');
});

test('What the address asks for and there is not gives an empty list, and no fault', {user: 'admin'}, async (page) => {
  const queries = ['page=99999', 'page=0', 'page=-1', 'page=x', 'page=1e3', 'page[]=1', 'page=99999999999999999999', 'user=nobody',
    'subject=nothing', 'outcome=nothing', 'user[]=a&subject[]=b', 'errors=nothing&live=nothing&filter[]=x', 'filter=%C3%A4%22'];
  for (const query of queries) {
    const answer = await page.goto(`${base()}diagnostics.php?${query}`);
    assert.equal(answer.status(), 200, query);
    assert.equal(await messages(page), '', query);
    if (/^page=|^(user|subject|outcome)=/.test(query)) assert.equal(await page.locator('.audit tbody tr').count(), 0, query);
  }
  for (const query of ['user=nobody', 'subject=nothing', 'outcome[]=x']) {
    const answer = await page.request.get(`${base()}audit.php?${query}`);
    assert.equal(answer.status(), 200, query);
  }
});

test('Ping and name lookup from the appliance', {user: 'admin'}, async (page) => {
  await open(page, 'diagnostics.php');
  const said = () => page.innerText('[aria-labelledby=network] .message');
  await page.fill('#ping', '10.20.0.1');
  await press(page, 'Ping');
  assert.match(await said(), /^10\.20\.0\.1 answers: 3 of 3 times, after [0-9.]+ ms on average\.$/);
  await page.fill('#ping', '10.20.0.99');
  await press(page, 'Ping');
  assert.match(await said(), /^10\.20\.0\.99 does not answer\./);
  await page.fill('#lookup', 'printer.lan.test');
  await press(page, 'Look up');
  assert.equal(await said(), 'printer.lan.test is 10.20.0.1.');
  await page.fill('#lookup', 'nowhere.test');
  await press(page, 'Look up');
  assert.match(await said(), /^No address is known for nowhere\.test\./);
});

test('What cannot be asked for is said at the field, and reaches no script', {user: 'admin'}, async (page) => {
  const asked = '/tmp/questions-asked';
  const text = `[ "$1" = -q ] || echo asked >>${asked}; exit 0`;
  await withScript('pingAddress.sh', text, () => withScript('lookUpName.sh', text, async () => {
    await open(page, 'diagnostics.php');
    for (const [field, button, values] of [
      ['ping', 'Ping', ['', '127.0.0.1', '224.0.0.1', '10.20.0', '-f', '10.20.0.1 -f', '10.20.0.1;id', '$(id)', 'lan.test']],
      ['lookup', 'Look up', ['', '-a', 'a b', 'a;id', '`id`', '$(id)', 'a..b', '127.0.0.1', '*']]]) {
      for (const value of values) {
        await page.fill(`#${field}`, value);
        await press(page, button);
        assert.notEqual(await errorOf(page, field), '', value);
        assert.equal(await page.inputValue(`#${field}`), value, 'what was typed stays');
      }
    }
  }));
  assert.ok(!fs.existsSync(asked));
});

test('While a question is asked another one is told to wait, and other pages do not wait', {user: 'admin'}, async (page, context) => {
  const holder = spawn('flock', ['/run/appmanager/question.lock', 'sleep', '20'], {detached: true});
  await until(() => {
    try {
      fromLan('flock', '-n', '/run/appmanager/question.lock', 'true');
      return false;
    } catch {
      return true;
    }
  }, 'the lock');
  try {
    await open(page, 'diagnostics.php');
    await page.fill('#ping', '10.20.0.1');
    await press(page, 'Ping');
    assert.match(await page.innerText('[aria-labelledby=network] .message'), /^Another question is being asked/);
  } finally {
    process.kill(-holder.pid);
  }
  await withScript('pingAddress.sh', '[ "$1" = -q ] || sleep 4', async () => {
    await open(page, 'diagnostics.php');
    await page.fill('#ping', '10.20.0.1');
    const answered = page.waitForNavigation();
    await page.click('button:text-is("Ping")');
    const began = Date.now();
    await fetch(`${base()}dns.php`, {headers: {cookie: await cookieOf(context)}});
    assert.ok(Date.now() - began < 3000, 'another page of the same session');
    await answered;
  });
});

test('The role monitor and a device without the programs have no questions', {user: 'monitor'}, async (page) => {
  await open(page, 'diagnostics.php');
  assert.equal(await page.locator('[aria-labelledby=network]').count(), 0);
});

test('A device without a script lacks its question alone', {user: 'admin'}, async (page) => {
  fs.renameSync(`${scripts}/pingAddress.sh`, `${scripts}/away`);
  try {
    await open(page, 'diagnostics.php');
    assert.equal(await page.locator('#ping').count(), 0);
    assert.equal(await page.locator('#lookup').count(), 1);
  } finally {
    fs.renameSync(`${scripts}/away`, `${scripts}/pingAddress.sh`);
  }
  await withScript('lookUpName.sh', 'exit 1', () => withScript('pingAddress.sh', 'exit 1', async () => {
    await open(page, 'diagnostics.php');
    assert.equal(await page.locator('[aria-labelledby=network]').count(), 0);
  }));
});

test('What hangs does not hold up the page: a question or the audit of the services is missing', {user: 'admin'}, async (page, context) => {
  await withScript('pingAddress.sh', 'exec sleep 984', () => withScript('auditTrail.sh', 'exec sleep 984', async () => {
    const began = Date.now();
    await open(page, 'diagnostics.php');
    assert.ok(Date.now() - began < 8000, `${Date.now() - began} milliseconds`);
    assert.equal(await page.locator('#ping').count(), 0);
    assert.match(await page.innerText('main'), /management services[^.]* cannot be read/);
    assert.equal(await messages(page), '');
    const asked = Date.now();
    const answer = await fetch(`${base()}audit.php`, {headers: {cookie: await cookieOf(context)}});
    assert.equal(answer.status, 200);
    assert.ok(Date.now() - asked < 8000, `${Date.now() - asked} milliseconds`);
  }));
  assert.equal(fromLan('sh', '-c', 'pgrep -fc "^sleep 984$" || true'), '0');
});

test('Who could not be asked is not said to be silent', {user: 'admin'}, async (page) => {
  await withScript('pingAddress.sh', '[ "$1" = -q ] || exit 1', async () => {
    await open(page, 'diagnostics.php');
    await page.fill('#ping', '10.20.0.1');
    await press(page, 'Ping');
    assert.equal(await page.innerText('[aria-labelledby=network] .message'), 'The appliance could not ask.');
  });
});

// What stands beside each receiver, by its address and port.
async function testResults(page) {
  const rows = await page.locator('[aria-labelledby=list] tbody tr:not(.question)').evaluateAll((all) => all.map((row) =>
    [...row.cells].map((cell) => cell.innerText.trim())));
  return Object.fromEntries(rows.map((cells) => [`${cells[2]} ${cells[0]}:${cells[1]}`, cells[3].split('\n')[0]]));
}

test('A test trap says of each receiver what became of it, all at once', {user: 'admin'}, async (page) => {
  const listener = spawn('socat', ['-u', 'TCP4-LISTEN:1999,fork,reuseaddr', 'OPEN:/dev/null']);
  try {
    await until(() => fromLan('ss', '-Hnlt', 'sport = :1999') !== '', 'a listener');
    php(['1, "10.20.0.1", "1998"', '1, "10.20.0.1", "1997"', '2, "10.20.0.1", "1999"', '2, "10.20.0.1", "1996"', '2, "10.20.0.98", "162"',
      '2, "10.20.0.99", "162"'].map((receiver) => `create_snmp_trap_reg($session, ${receiver});`).join(''));
    await datagramsTo(1998, async (received) => {
      await open(page, 'traps.php');
      assert.equal(await page.locator('th:text-is("Test")').count(), 0);
      const began = Date.now();
      await press(page, 'Send a test trap');
      assert.ok(Date.now() - began < 12000, `${Date.now() - began} ms: the agent's start, and 3 seconds for all`);
      assert.deepEqual(await testResults(page), {'UDP 10.20.0.1:1998': 'Sent', 'UDP 10.20.0.1:1997': 'Refused',
        'TCP 10.20.0.1:1999': 'Taken', 'TCP 10.20.0.1:1996': 'Refused', 'TCP 10.20.0.98:162': 'Not reached',
        'TCP 10.20.0.99:162': 'Not reached'});
      assert.ok(received().includes('public'), 'it has arrived');
    });
    await open(page, 'traps.php');
    assert.equal(await page.locator('th:text-is("Test")').count(), 0, 'the results are of the moment');
  } finally {
    listener.kill();
    php('foreach (get_snmp_trap_regs($session) as $receiver) delete_snmp_trap_reg($session, $receiver->id);');
  }
});

test('A device that keeps no results, or only those of an earlier test, says that the trap was sent', {user: 'admin'}, async (page) => {
  php('create_snmp_trap_reg($session, 1, "10.20.0.77", "162");');
  try {
    for (const text of ['exit 1', 'echo udp:10.20.0.77:162 2c sent', 'printf "time 1\\nudp:10.20.0.77:162 2c sent\\n"', 'printf "\\377 rubbish"']) {
      await withScript('testTrapResults.sh', text, async () => {
        await open(page, 'traps.php');
        await press(page, 'Send a test trap');
        assert.match(await messages(page), /^A test trap was sent to every receiver\. Look there/, text);
        assert.equal(await page.locator('th:text-is("Test")').count(), 0, text);
      });
    }
  } finally {
    php('foreach (get_snmp_trap_regs($session) as $receiver) delete_snmp_trap_reg($session, $receiver->id);');
  }
});
