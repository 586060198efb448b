// Changes on trial: whoever makes one is never locked out.
'use strict';

const assert = require('node:assert/strict');
const fs = require('node:fs');
const {addresses, applianceFolder, ask, fromLan, inAppliance, ipv4Address, php, until, web,
  withScript} = require('./appliance.cjs');
const {accessibilityFaults, base, enterPassword, errorOf, messages, open, press, served, showCommunity, signIn, test} = require('./browser.cjs');
const {answersAt, apply, applyDhcp, applyIfFree, audit, fillStatic, isUndone, isUndoneWithTabClosed, keepWhatIs, passes,
  reaches, record, setStatic, trial, withDhcpServer, withOtherDevice} = require('./on_trial.cjs');

test('A static address in the right network: the page arrives there with its session, and the change is kept', {}, async (page) => {
  await setStatic('10.20.0.7');
  await signIn(page);
  await fillStatic(page, '10.20.0.8');
  await press(page, 'Apply');
  assert.equal(await page.innerText('h1'), 'Applying', 'nothing speaks against it: no further step');
  await page.waitForURL('http://10.20.0.8/applying.php', {timeout: 60000});
  await page.waitForSelector('h1:text-is("Kept")');
  assert.match(await page.innerText('#outcome'), /^Kept by admin: reached under the new settings\./);
  assert.equal(trial('state'), 'kept');
  assert.deepEqual(addresses('inet'), ['10.20.0.8/24']);
  await answersAt('10.20.0.8');
  assert.deepEqual(audit().slice(-2).map(([user, client, operation]) => [user, client, operation]),
    [['admin', '10.20.0.1', 'IPv4 settings begun'], ['admin', '10.20.0.1', 'IPv4 settings kept']]);
  await press(page, 'Undo now');
  assert.equal(await page.innerText('h1'), 'Undoing');
  await page.waitForURL('http://10.20.0.7/applying.php', {timeout: 60000});
  await page.waitForSelector('h1:text-is("Undone")', {timeout: 60000});
  await answersAt('10.20.0.7');
});

test('A static address in a wrong network: the settings of before come back by themselves', {}, async (page) => {
  await signIn(page);
  await fillStatic(page, '10.99.0.7', '10.99.0.1');
  await press(page, 'Apply');
  assert.equal(await page.innerText('h1'), 'Before it is applied');
  assert.match(await page.innerText('main'), /Your computer has the address 10\.20\.0\.1, which is outside of the network of 10\.99\.0\.7/);
  assert.match(await page.innerText('main'), /The gateway 10\.99\.0\.1 does not answer/);
  await press(page, 'Back');
  assert.equal(await page.inputValue('#ip'), '10.99.0.7', 'nothing typed is lost');
  assert.equal(trial('to'), '10.20.0.8', 'nothing is on trial');
  await apply(page);
  await until(() => ipv4Address() === '10.99.0.7', 'the wrong address');
  await reaches('trial');
  await page.waitForSelector('[data-when-lost]:visible', {timeout: 60000});
  assert.equal(await page.innerText('h1'), 'Waiting', 'nothing stale is shown');
  assert.ok(!await page.isVisible('#values') && !await page.isVisible('#steps'));
  assert.match(await page.innerText('[data-when-lost]'), new RegExp('You need do nothing: it answers here again at [\\d: APM]+\\. .*'
    + 'To keep the change, give this computer an address of 10\\.99\\.0\\.0/24, open http://10\\.99\\.0\\.7/ and sign in as admin\\.', 's'));
  const left = Number(await page.innerText('[data-countdown]'));
  assert.ok(left > 30 && left < 60, `${left} seconds are left`);
  passes(45);
  await reaches('undone');
  await answersAt('10.20.0.7');
  await page.waitForSelector('h1:text-is("Undone")', {timeout: 60000});
  assert.match(await page.innerText('#outcome'), /^Undone at [\d:]+ UTC, because nobody was back under the new settings within 60 seconds\./);
  assert.equal(audit().at(-1)[2], 'IPv4 settings undone');
});

test('The same with the tab closed at once', {}, async (page, context) => {
  await signIn(page);
  await fillStatic(page, '10.99.0.7', '10.99.0.1');
  await apply(page);
  await context.clearCookies();
  await page.goto('about:blank');
  await until(() => ipv4Address() === '10.99.0.7', 'the wrong address');
  await reaches('trial');
  php('set_network_hostname($session, "shelf");');
  await isUndone();
  assert.equal(inAppliance('hostname'), 'shelf', 'a name that was changed meanwhile stays');
  php('set_network_hostname($session, "library");');
});

test('The right network and a wrong gateway: said before, and kept, as its maker is back', {}, async (page) => {
  await signIn(page);
  await fillStatic(page, '10.20.0.7', '10.20.0.66');
  await press(page, 'Apply');
  assert.match(await page.innerText('main'), /The gateway 10\.20\.0\.66 does not answer/);
  assert.doesNotMatch(await page.innerText('main'), /Your computer|Another device/);
  await press(page, 'Apply');
  await page.waitForSelector('h1:text-is("Kept")', {timeout: 60000});
  assert.match(inAppliance('ip', 'route', 'show', 'default'), /via 10\.20\.0\.66 /);
  await answersAt('10.20.0.7');
  await setStatic('10.20.0.7');
  // Nobody is back when the tab is closed.
  await fillStatic(page, '10.20.0.7', '10.20.0.66');
  await apply(page);
  await isUndoneWithTabClosed(page);
  assert.match(inAppliance('ip', 'route', 'show', 'default'), /via 10\.20\.0\.1 /);
});

test('An address that another web server has: said before, and it gets neither the visitor nor the key', {}, async (page) => {
  await signIn(page);
  await withOtherDevice('10.20.0.9', 'Here is somebody else.', async (asked) => {
    await fillStatic(page, '10.20.0.9');
    await press(page, 'Apply');
    assert.match(await page.innerText('main'), /Another device answers under 10\.20\.0\.9 already/);
    await press(page, 'Apply');
    await page.waitForSelector('[data-when-lost]:visible', {timeout: 60000});
    await until(() => asked.length > 1, 'questions to the other web server');
    assert.ok(page.url().startsWith('http://10.20.0.7/'), page.url());
    passes(50);
    await page.waitForSelector('h1:text-is("Undone")', {timeout: 60000});
    assert.ok(asked.every((address) => /^\/trial\.php\?probe=[0-9a-f]{32}$/.test(address)), asked.join(' '));
    // Nor when the visitor takes the link.
    const links = await page.locator('main a').evaluateAll((all) => all.map((link) => link.href));
    assert.deepEqual(links.filter((link) => /key|#[0-9a-f]{32}/.test(link)), []);
  });
  await answersAt('10.20.0.7');
});

test('An address that another host has', {}, async (page) => {
  await signIn(page);
  await withOtherDevice('10.20.0.9', '', async () => {
    await fillStatic(page, '10.20.0.9');
    await apply(page);
    await isUndone();
    await page.waitForSelector('h1:text-is("Undone")', {timeout: 60000});
  });
});

test('DHCP without a server: the page shows that the settings of before are back', {}, async (page) => {
  await signIn(page);
  await withDhcpServer('ignore', async () => {
    await applyDhcp(page);
    await reaches('trial');
    assert.equal(ipv4Address(), undefined);
    await page.waitForSelector('[data-when-lost]:visible', {timeout: 60000});
    assert.match(await page.innerText('[data-when-lost]'), /Leave this page open: it shows when the settings of before are back/);
    await isUndone();
  });
  await page.waitForSelector('h1:text-is("Undone")', {timeout: 60000});
});

test('Another web server, another host, DHCP without a server and with another lease, with the tab closed at once', {}, async (page) => {
  const closed = async (begin) => {
    await page.context().clearCookies();
    await signIn(page);
    await begin();
    await isUndoneWithTabClosed(page);
  };
  const begin = () => closed(async () => {
    await fillStatic(page, '10.20.0.9');
    await apply(page);
  });
  await withOtherDevice('10.20.0.9', 'Here is somebody else.', begin);
  await withOtherDevice('10.20.0.9', '', begin);
  await withDhcpServer('ignore', () => closed(() => applyDhcp(page)));
  await withDhcpServer('10.20.0.141', () => closed(async () => {
    await applyDhcp(page);
    await until(() => ipv4Address() === '10.20.0.141', 'the other lease');
  }));
});

test('DHCP with another lease than the page can know: kept by whoever signs in there', {}, async (page) => {
  ask('ipv4Manager.sh', '-c', '-d', 'on');
  const [earlier] = await until(() => /^10\.20\.0\.1[0-3]\d$/.test(ipv4Address()) && [ipv4Address()], 'a lease');
  await signIn(page);
  await fillStatic(page, '10.20.0.7');
  await apply(page);
  await page.waitForSelector('h1:text-is("Kept")', {timeout: 60000});
  await withDhcpServer('10.20.0.142', async () => {
    await applyDhcp(page);
    assert.equal(await page.locator(`[data-origin="http://${earlier}"]`).count(), 1, 'it looks at the earlier one');
    await until(() => ipv4Address() === '10.20.0.142', 'the other lease');
    await reaches('trial');
    await page.waitForSelector('[data-when-lost]:visible', {timeout: 60000});
    await page.context().clearCookies();
    await page.goto('http://10.20.0.142/index.php');
    await enterPassword(page);
    assert.match(await messages(page), /^IPv4 settings: Kept by admin: reached under the new settings\./);
    assert.equal(trial('state'), 'kept');
    await answersAt('10.20.0.142');
  });
  await setStatic('10.20.0.7');
});

test('One trial at a time, and two administrators: the other one is offered to keep and to undo it', {}, async (page, context) => {
  await signIn(page);
  const other = await (await context.browser().newContext()).newPage();
  await signIn(other);
  await fillStatic(other, '10.20.0.9');
  await fillStatic(page, '10.20.0.7', '10.20.0.66', '300');
  await apply(page);
  // Before the page's own request keeps it.
  await page.goto('about:blank');
  await applyIfFree(other);
  assert.match(await messages(other), /IPv4 settings: a change by admin is on trial for \d+ more seconds/);
  assert.match(await errorOf(other, 'mode'), /^Another change is on trial: keep or undo it first/);
  assert.equal(await other.inputValue('#ip'), '10.20.0.9', 'nothing typed is lost');
  await press(other, 'Undo now');
  await reaches('undone');
  await answersAt('10.20.0.7');
  await other.waitForSelector('h1:text-is("Undone")'); // it comes there by itself
  assert.match(await other.innerText('#outcome'), /^Undone at [\d:]+ UTC, because admin asked for it\./);
  assert.match(inAppliance('ip', 'route', 'show', 'default'), /via 10\.20\.0\.1 /);
  await other.context().close();
});

test('A form that was opened before somebody else\'s change overwrites nothing silently', {}, async (page) => {
  await signIn(page);
  await fillStatic(page, '10.20.0.8');
  await setStatic('10.20.0.7');
  ask('ipv4Manager.sh', '-c', '-s', '10.20.0.7?255.255.255.0?10.20.0.44');
  await press(page, 'Apply');
  assert.match(await page.innerText('main'), /Somebody has changed these settings since you opened the form/);
  assert.match(await page.innerText('main'), /Gateway: 10\.20\.0\.1 when you opened it, 10\.20\.0\.44 now/);
  assert.equal(await page.inputValue('#ip'), '10.20.0.8');
  assert.equal(ipv4Address(), '10.20.0.7');
  await setStatic('10.20.0.7');
});

test('So do those of the host name, the name servers and the agent; sent again, they are taken', {}, async (page) => {
  const cases = [
    ['ipv4.php', 'set_network_hostname($session, "shelf");', '#hostname', 'rack', 'Save name', /Name: library when you opened it, shelf now/,
      () => inAppliance('hostname'), 'rack'],
    ['dns.php', 'class D { var $dnsPrimary = "10.20.0.1"; var $dnsSecondary = ""; } set_network_dns($session, new D());', '#dnsPrimary',
      '10.20.0.3', 'Save', /Primary server: none when you opened it, 10\.20\.0\.1 now/, () => ask('ipv6Manager.sh', '-g', 'dns'), '10.20.0.3'],
    ['snmp.php', 'set_snmp_settings($session, (object) array("version1" => true, "trap1" => true, "trap2" => false, '
      + '"auth_traps_enabled" => false, "community_name" => "theirs"));', '#community_name', 'mine', 'Save',
    /Read community: public when you opened it, theirs now/, () => php('echo get_snmp_settings($session)->community_name;'), 'mine'],
  ];
  await signIn(page);
  for (const [name, meanwhile, field, typed, button, said, now, wanted] of cases) {
    await open(page, name);
    if (name === 'snmp.php') await showCommunity(page);
    await page.fill(field, typed);
    php(meanwhile);
    const theirs = now();
    await press(page, button);
    assert.match(await page.innerText('main'), said, name);
    assert.equal(now(), theirs, name);
    assert.equal(await page.inputValue(field), typed, name);
    await press(page, button);
    assert.equal(now(), wanted, name);
  }
  php('set_network_hostname($session, "library"); class D { var $dnsPrimary = ""; var $dnsSecondary = ""; } set_network_dns($session, new D());'
    + 'set_snmp_settings($session, (object) array("version1" => true, "trap1" => true, "trap2" => false, '
    + '"auth_traps_enabled" => false, "community_name" => "public"));');
});

test('An unchanged form changes nothing and says so', {}, async (page) => {
  await signIn(page);
  const logged = fs.statSync(`${web}/logs/php_extension.log`).size;
  for (const [name, button] of [['ipv4.php', 'Apply'], ['ipv6.php', 'Apply'], ['dns.php', 'Save'], ['port.php', 'Save'], ['snmp.php', 'Save']]) {
    await open(page, name);
    await press(page, button);
    assert.equal(await messages(page), 'These are the settings already; nothing was changed.', name);
  }
  const trace = fs.readFileSync(`${web}/logs/php_extension.log`, 'utf8').slice(logged);
  assert.match(trace, /ntering get_/);
  assert.doesNotMatch(trace, /ntering set_/);
});

test('Keeping, and the end of the time, at the same instant: exactly one wins, 50 times', {}, async () => {
  await keepWhatIs();
  const code = 'require "/home/embedded/library/HTTPService/lighttpd/shared/page.php";';
  const outcomes = inAppliance('php', '-r', `${code}
    $session = new Session(); $session->user = "admin"; $session->role = "admin";
    for ($round = 0; $round < 50; $round++) {
      $before = settings_of($session, "ssl");
      $record = new_trial($session, "ssl", array("https" => "Off"), $before, "", "", 300);
      if (!begin_trial($record) || !ended_at_once($record)) { echo "no trial\\n"; exit; }
      $start = microtime(true) + 0.05;
      $running = array();
      foreach (array("keep" => 'echo keep_trial($t, "asked", "one", "") ? 1 : 0;',
          "undo" => '$t = undo_trial($t, "time", "", ""); echo $t["state"] == "undoing" ? 1 : 0;') as $wish => $do) {
        $program = 'require "/home/embedded/library/HTTPService/lighttpd/shared/page.php"; $t = read_trial();'
          . 'while (microtime(true) < ' . $start . ') {} ' . $do;
        $running[$wish] = popen("php -r " . escapeshellarg($program), "r");
      }
      $said = array();
      foreach ($running as $wish => $process) { $said[] = $wish . fgets($process); pclose($process); }
      $now = read_trial();
      echo implode(" ", $said), " ", $now["state"], "\\n";
      // Nothing is to be put back here.
      change_trial($now["id"], array("undoing"), array("state" => "undone", "settled" => time()));
    }`).split('\n');
  assert.equal(outcomes.length, 50, outcomes.join('\n'));
  for (const outcome of outcomes) assert.ok(['keep1 undo0 kept', 'keep0 undo1 undoing'].includes(outcome), outcome);
});

test('The web server starts anew during a trial, and the watcher is killed: the time is over all the same', {}, async (page) => {
  await signIn(page);
  await fillStatic(page, '10.20.0.8');
  await press(page, 'Apply');
  await page.goto('about:blank');
  const service = fs.readFileSync('/run/appmanager/webServer.pid', 'utf8').trim();
  const servers = () => fs.readFileSync(`/proc/${service}/task/${service}/children`, 'utf8').trim();
  const before = servers();
  process.kill(Number(service), 'SIGUSR1');
  await until(() => /^\d+$/.test(servers()) && servers() !== before, 'another web server, and the end of the one of before');
  await reaches('trial');
  assert.equal(ipv4Address(), '10.20.0.8');
  await isUndone();

  await served('http');
  await page.context().clearCookies();
  await signIn(page);
  await fillStatic(page, '10.20.0.8');
  await press(page, 'Apply');
  await page.goto('about:blank');
  await reaches('trial');
  // Of the watcher the outer one first, which would start the inner one again.
  for (const inside of ['^sh -c ', '^php -r ']) {
    for (const watcher of fromLan('pgrep', '-f', `${inside}.*watch_trial`).split('\n')) process.kill(Number(watcher), 'SIGKILL');
  }
  passes(65);
  assert.equal(trial('state'), 'trial', 'nobody is there to undo it');
  await fetch('http://10.20.0.8/index.php');
  await until(async () => {
    await fetch('http://10.20.0.7/index.php', {signal: AbortSignal.timeout(500)}).catch(() => {});
    return trial('state') === 'undone';
  }, 'the undoing by a request');
  await answersAt('10.20.0.7');
});

test('IPv6 is switched on by a visitor over IPv4: proved over IPv6, and kept', {}, async (page) => {
  await signIn(page);
  await open(page, 'ipv6.php');
  await page.check('#enabled');
  await press(page, 'Apply');
  await page.waitForSelector('h1:text-is("Kept")', {timeout: 60000});
  assert.ok(page.url().includes('10.20.0.7'), 'the page stays where it is');
  const [user, client, what] = audit().at(-1);
  assert.deepEqual([user, what], ['admin', 'IPv6 settings kept']);
  assert.match(client, /^2001:db8:20::/);
});

test('IPv6 is switched off by a visitor over IPv6: offered before, and proved, over IPv4, where nobody can tell who has the key', {}, async (page) => {
  const [address] = await until(() => addresses('inet6').length > 0 && addresses('inet6'), 'an address');
  await page.goto(`http://[${address.split('/')[0]}]/ipv6.php`);
  await enterPassword(page);
  assert.equal(await page.getAttribute('main .message.note a', 'href'), 'http://10.20.0.7/ipv6.php');
  await page.uncheck('#enabled');
  await press(page, 'Apply');
  assert.match(await page.innerText('main'), /It goes on by itself to\s+http:\/\/10\.20\.0\.7\/, where you sign in again/);
  await page.waitForURL('http://10.20.0.7/applying.php', {timeout: 60000});
  await page.waitForSelector('form[action="signin.php"]');
  assert.equal(trial('state'), 'kept');
  await enterPassword(page);
  assert.equal(await page.innerText('h1'), 'Kept');
  assert.deepEqual(addresses('inet6'), []);
});

test('IPv6 modes: nobody proves them, so that they are undone; nothing of a part that is refused stays', {}, async (page) => {
  php('set_ipv6_enabled($session, true);');
  await until(() => addresses('inet6').length > 0, 'an address');
  await signIn(page);
  await open(page, 'ipv6.php');
  await page.uncheck('#stateless');
  await press(page, 'Apply');
  const changed = page.url();
  await page.goto('about:blank');
  await reaches('trial');
  assert.equal(ask('ipv6Manager.sh', '-l'), '0');
  passes(85);
  await reaches('undone');
  assert.equal(ask('ipv6Manager.sh', '-l'), '1');
  await page.goto(changed);
  await page.waitForSelector('h1:text-is("Undone")');
  await withScript('ipv6Manager.sh', 'case "$*" in "-c -d on") exit 1 ;; *) exec sh "$ORIGINAL" "$@" ;; esac', async () => {
    await open(page, 'ipv6.php');
    await page.uncheck('#stateless');
    await page.check('#dhcp');
    await press(page, 'Apply');
    assert.match(await messages(page), /Failed to configure DHCP settings/);
  });
  assert.equal(ask('ipv6Manager.sh', '-l'), '1');
  php('set_ipv6_enabled($session, false);');
});

test('HTTPS, and a browser that refuses the certificate: HTTP is back, and the page says so', {ignoreHTTPSErrors: false}, async (page) => {
  await signIn(page, 'admin', 'security.php');
  await page.check('#https-1');
  await page.selectOption('#trial', '60');
  await press(page, 'Save');
  await served('https');
  await page.click('text=Continue with HTTPS', {timeout: 5000}).catch(() => {});
  await page.waitForURL(/^chrome-error|https:/, {timeout: 5000}).catch(() => {});
  assert.equal(trial('state'), 'trial');
  passes(57);
  await reaches('undone');
  await served('http');
  await page.goto(`${base()}index.php`);
  assert.match(await messages(page), /^Web security: Undone at [\d:]+ UTC, because nobody was back/);
  await open(page, 'index.php');
  assert.equal(await messages(page), '', 'it is said once');
});

test('HTTPS that nobody goes to: the page that waits comes back to HTTP', {}, async (page) => {
  await signIn(page, 'admin', 'security.php');
  await page.check('#https-1');
  await page.selectOption('#trial', '60');
  await press(page, 'Save');
  await served('https');
  await page.waitForSelector('[data-when-there]:visible');
  assert.match(await page.innerText('[data-when-there]'), /HTTPS is there/);
  assert.equal(await page.locator('progress:visible').count(), 0, 'the web server restarts no longer');
  passes(57);
  await page.waitForURL(`${base()}applying.php`, {timeout: 60000});
  assert.match(await page.innerText('#outcome'), /^Undone at/);
});

test('Under HTTPS the session moves along to another address, too', {}, async (page) => {
  php('set_ssl_settings($session, true);');
  await served('https');
  await signIn(page, 'admin', 'ipv4.php', 'https');
  await fillStatic(page, '10.20.0.8');
  await press(page, 'Apply');
  await page.waitForURL('https://10.20.0.8/applying.php', {timeout: 60000});
  await page.waitForSelector('h1:text-is("Kept")');
  php('set_ssl_settings($session, false);');
  await served('http');
  await setStatic('10.20.0.7');
});

test('Without scripts the page goes to a free address by itself, without the key; who signs in there keeps the change',
  {javaScriptEnabled: false}, async (page) => {
    await signIn(page);
    await fillStatic(page, '10.20.0.8');
    await press(page, 'Apply');
    assert.match(await page.innerText('main'), /Your browser runs no scripts, so you sign in there again/);
    await page.waitForURL('http://10.20.0.8/applying.php', {timeout: 60000});
    await reaches('trial');
    await enterPassword(page);
    assert.equal(await page.innerText('h1'), 'Kept');
    assert.equal(trial('state'), 'kept');
    await answersAt('10.20.0.8');
    await press(page, 'Undo now');
    await page.waitForURL('http://10.20.0.7/applying.php', {timeout: 60000});
    assert.equal(await page.innerText('h1'), 'Undone');
    await answersAt('10.20.0.7');
  });

test('Without scripts another web server under the new address gets neither the visitor nor the key', {javaScriptEnabled: false}, async (page) => {
  await signIn(page);
  await withOtherDevice('10.20.0.9', 'Here is somebody else.', async (asked) => {
    await fillStatic(page, '10.20.0.9');
    await apply(page);
    assert.match(await page.innerText('main'), /another device may have that address: open it yourself/);
    assert.doesNotMatch(await page.content(), /trial\.php\?key/);
    await until(() => ipv4Address() === '10.20.0.9', 'the new address');
    await reaches('trial');
    // Longer than a free address would be waited for.
    await page.waitForTimeout(8000);
    assert.equal(page.url(), 'http://10.20.0.7/applying.php');
    await page.click('.message.note a');
    assert.match(await page.innerText('body'), /Here is somebody else/);
    assert.deepEqual(asked.filter((address) => address !== '/favicon.ico'), ['/applying.php'], 'what the visitor asked for, and no key');
    await isUndone();
  });
  await page.goto('http://10.20.0.7/applying.php');
  assert.equal(await page.innerText('h1'), 'Undone');
});

test('Without scripts a page that cannot go on comes back to itself when the time is over', {javaScriptEnabled: false}, async (page) => {
  await signIn(page);
  await fillStatic(page, '10.99.0.7', '10.99.0.1');
  await apply(page);
  const refresh = (await page.content()).match(/http-equiv="refresh" content="(\d+); url=applying\.php"/);
  // When the time is over, and what undoing takes.
  assert.ok(refresh && refresh[1] > 60 && refresh[1] < 120, String(refresh));
  await isUndone();
  await open(page, 'applying.php');
  assert.equal(await page.innerText('h1'), 'Undone');
});

test('The key is good for one use, for the right address, and for nobody who guesses', {}, async (page) => {
  await signIn(page);
  await fillStatic(page, '10.20.0.8');
  await press(page, 'Apply');
  const key = await page.getAttribute('[data-key]', 'data-key');
  assert.match(key, /^[0-9a-f]{32}$/);
  const use = async (where, value) => {
    const answer = await fetch(`http://${where}/trial.php`, {method: 'POST', redirect: 'manual', body: new URLSearchParams({key: value})});
    const cookie = (answer.headers.get('set-cookie') || '').split(';')[0];
    const text = await (await fetch(`http://${where}/index.php`, {headers: {cookie}})).text();
    return /<nav/.test(text);
  };
  assert.equal(await use('10.20.0.7', key), false, 'the old address proves nothing');
  assert.ok(!fs.readFileSync(record, 'utf8').includes(key), 'only its hash is stored');
  await page.goto('about:blank');
  await reaches('trial');
  assert.equal(await use('10.20.0.8', '0'.repeat(32)), false);
  await fetch(`http://10.20.0.8/trial.php?key=${key}`);
  assert.equal(trial('state'), 'trial', 'in an address it is good for nothing');
  assert.equal(await use('10.20.0.8', key), true);
  assert.equal(trial('state'), 'kept');
  assert.equal(await use('10.20.0.8', key), false);
  const signIns = fs.readFileSync(`${applianceFolder}/HTTPService/dat/audit.sign-ins`, 'utf8').trim().split('\n');
  assert.deepEqual(signIns.filter((line) => line.includes('the key of a change')).map((line) => line.split('\t').slice(1, 4)).at(-1),
    ['admin', '10.20.0.1', 'Signed in with the key of a change on trial.']);
  await setStatic('10.20.0.7');
});

test('The trial by the keyboard alone, read out, and 390 pixels wide', {viewport: {width: 390, height: 844}}, async (page) => {
  await signIn(page);
  await open(page, 'ipv4.php');
  await page.focus('#gateway');
  await page.keyboard.press('Control+A');
  await page.keyboard.type('10.20.0.66');
  const stop = async (label) => {
    for (let i = 0; i < 40; i += 1) {
      await page.keyboard.press('Tab');
      if ((await page.evaluate(() => document.activeElement.innerText)).startsWith(label)) return;
    }
    throw new Error(`The keyboard does not reach ${label}.`);
  };
  await page.keyboard.press('Enter');
  await page.waitForSelector('h1:text-is("Before it is applied")');
  assert.deepEqual(await accessibilityFaults(page), []);
  await stop('Apply');
  await page.keyboard.press('Enter');
  await page.waitForSelector('h1:text-is("Applying")');
  assert.equal(await page.getAttribute('#outcome', 'role'), 'status', 'what becomes of it is read out');
  assert.equal(await page.getAttribute('[data-countdown]', 'aria-live'), 'off', 'the seconds are not');
  assert.deepEqual(await accessibilityFaults(page), []);
  assert.ok(await page.evaluate(() => document.documentElement.scrollWidth <= innerWidth));
  await page.waitForSelector('h1:text-is("Kept")', {timeout: 60000});
  await stop('Undo now');
  await page.keyboard.press('Enter');
  await reaches('undone');
  await page.waitForSelector('h1:text-is("Undone")', {timeout: 60000});
  assert.deepEqual(await accessibilityFaults(page), []);
  assert.ok(await page.evaluate(() => document.documentElement.scrollWidth <= innerWidth));
});

test('An IPv6 address that another host has is said before', {}, async (page) => {
  php('set_ipv6_enabled($session, true);');
  await until(() => addresses('inet6').length > 0, 'an address');
  await signIn(page);
  await open(page, 'ipv6.php');
  await page.check('#static');
  await page.fill('#ipStatic', '2001:db8:20::1');
  await page.fill('#gateway', 'fe80::1');
  await press(page, 'Apply');
  assert.match(await page.innerText('main'), /Another device answers under 2001:db8:20::1 already/);
  assert.match(await page.innerText('main'), /The gateway fe80::1 does not answer/);
  await press(page, 'Back');
  assert.equal(await page.inputValue('#ipStatic'), '2001:db8:20::1');
  assert.ok(await page.isChecked('#static'));
  php('set_ipv6_enabled($session, false);');
});

test('The internal network is refused at its field', {}, async (page) => {
  await signIn(page);
  await fillStatic(page, '192.168.250.7', '192.168.250.1');
  await press(page, 'Apply');
  assert.match(await errorOf(page, 'ip'), /^The network 192\.168\.250\.0\/24 is used inside the appliance/);
});

test('The script that asks the network takes an address and nothing else', {}, () => {
  assert.equal(ask('probeAddress.sh', '10.20.0.1'), 'answers');
  assert.equal(ask('probeAddress.sh', '10.20.0.66'), 'silent');
  for (const word of ['', '-f', '10.20.0.1 10.20.0.2', '10.20.0.1;id', 'lan.test', '-I lo']) {
    assert.throws(() => ask('probeAddress.sh', word), /is none/, word);
  }
  assert.throws(() => ask('probeAddress.sh'), /are none of/);
});

test('Who may only look sees the trial, and no buttons', {}, async (page, context) => {
  await signIn(page);
  const other = await (await context.browser().newContext()).newPage();
  await signIn(other, 'monitor');
  await fillStatic(page, '10.20.0.8');
  await press(page, 'Apply');
  await open(other, 'index.php');
  assert.match(await messages(other), /IPv4 settings: a change by admin is on trial for \d+ more seconds/);
  assert.equal(await other.locator('main button').count(), 0);
  await open(other, 'applying.php');
  assert.equal(await other.locator('main button').count(), 0);
  assert.equal(await other.locator('[data-key]').evaluateAll((all) => all.map((way) => way.dataset.key).join('')), '', 'nor the key');
  await other.context().close();
  // The page goes on by itself meanwhile.
  await page.waitForSelector('h1:text-is("Kept")', {timeout: 60000});
  await press(page, 'Undo now');
  await reaches('undone');
});

test('What was on trial is in the audit under Diagnostics', {user: 'admin'}, async (page) => {
  await open(page, 'diagnostics.php?live=0');
  const said = await page.innerText('[aria-labelledby=audit]');
  assert.match(said, /IPv4 settings undone/);
  assert.match(said, /asked for by admin/);
  assert.match(said, /Address 10\.20\.0\.8/);
  // As the other tests find it.
  ask('ipv4Manager.sh', '-c', '-d', 'on');
  await until(() => /^10\.20\.0\.1\d\d$/.test(ipv4Address()), 'a lease');
});
