// Changes of the addresses themselves, which go on after the answer. Most are made without a trial here: trial.test.cjs
// has those that are made with one.
'use strict';

const assert = require('node:assert/strict');
const fs = require('node:fs');
const http = require('node:http');
const {addresses, applianceFolder, ask, inAppliance, ipv4Address, ipv4ChangesOver, php, until, withScript,
  writeAsPages} = require('./appliance.cjs');
const {base, enterPassword, messages, open, press, sessionCookie, signIn, test} = require('./browser.cjs');

async function fillStatic(page, ip, gateway = '10.20.0.1') {
  await open(page, 'ipv4.php');
  await page.check('#mode-static');
  await page.fill('#ip', ip);
  await page.fill('#netmask', '255.255.255.0');
  await page.fill('#gateway', gateway);
  await page.selectOption('#trial', '0');
}

// Past the step at which the appliance warns: of a gateway that does not answer, say.
async function apply(page) {
  await press(page, 'Apply');
  if (await page.innerText('h1') === 'Before it is applied') await press(page, 'Apply');
}

function rows(page) {
  return page.locator('#values tbody tr').evaluateAll((all) => all.map((row) =>
    [...row.cells].map((cell) => cell.innerText.trim()).join('|')));
}

// Lets the change that was begun be so old that it should have come to its end.
function timeIsOver() {
  const path = `${applianceFolder}/HTTPService/dat/trial`;
  const change = fs.readFileSync(path, 'utf8');
  const [, began] = change.match(/"began";i:(\d+);/);
  writeAsPages(path, change.replace(began, String(began - 45)));
}

// As without a page: for the state a test begins with.
async function setStatic(ip) {
  ask('ipv4Manager.sh', '-c', '-s', `${ip}?255.255.255.0?10.20.0.1`);
  await until(() => ipv4Address() === ip, `the address ${ip}`);
}

test('What will happen is said before it happens', {user: 'admin'}, async (page) => {
  await open(page, 'ipv4.php');
  assert.match(await page.innerText('.when-dhcp'), /begins after three seconds/);
  await page.check('#mode-static');
  await page.fill('#ip', '10.20.0.7');
  assert.match(await page.innerText('p.when-static'), /loses its connection;\s+it is then at http:\/\/10\.20\.0\.7\/, where it goes on/);
});

test('From DHCP to a static address: the page follows to the new address and says "Applied"', {user: 'admin'}, async (page) => {
  assert.match(ask('ipv4Manager.sh', '-d', 'status'), /^10\.20\.0\.1\d\d\?/);
  await fillStatic(page, '10.20.0.7');
  await apply(page);
  assert.equal(await page.innerText('h1'), 'Applying');
  assert.ok(await page.isVisible('progress'));
  assert.deepEqual((await rows(page)).slice(0, 2).map((row) => row.replace(/\d+\.\d+\.\d+\.1\d\d/, 'lease')),
    ['Obtained by|Static|DHCP|Not yet', 'Address|10.20.0.7|lease|Not yet']);
  assert.equal(await page.getAttribute('.message a', 'href'), 'http://10.20.0.7/applying.php', 'without the key');
  await page.waitForURL('http://10.20.0.7/applying.php', {timeout: 60000});
  assert.deepEqual(addresses('inet'), ['10.20.0.7/24']);
  assert.match(inAppliance('ip', 'route', 'show', 'default'), /via 10\.20\.0\.1 /);
  assert.equal(await page.innerText('h1'), 'Applied');
  assert.deepEqual(await rows(page), ['Obtained by|Static|Static|As wanted', 'Address|10.20.0.7|10.20.0.7|As wanted',
    'Netmask|255.255.255.0|255.255.255.0|As wanted', 'Gateway|10.20.0.1|10.20.0.1|As wanted']);
  await page.click('text=Back to the settings');
  assert.ok(await page.isChecked('#mode-static'));
  assert.equal(await page.inputValue('#ip'), '10.20.0.7');
});

test('A change that leaves the address alone is applied while one watches', {}, async (page) => {
  await setStatic('10.20.0.7');
  await signIn(page);
  await fillStatic(page, '10.20.0.7', '10.20.0.2');
  await apply(page);
  assert.match(await page.title(), /^Applying/);
  assert.equal(await page.locator('.message a').count(), 0, 'there is no other address to go to');
  await page.waitForSelector('h1:text-is("Applied")', {timeout: 60000});
  assert.match(await page.innerText('#outcome'), /^The settings are in force\./);
  assert.match(inAppliance('ip', 'route', 'show', 'default'), /via 10\.20\.0\.2 /);
  await page.reload();
  assert.equal(await page.innerText('h1'), 'Applied');
});

test('Without scripts the page goes to the new address too, to sign in there', {javaScriptEnabled: false}, async (page) => {
  await signIn(page);
  await fillStatic(page, '10.20.0.8');
  await apply(page);
  assert.equal(await page.innerText('h1'), 'Applying');
  await page.waitForURL('http://10.20.0.8/applying.php', {timeout: 60000});
  await enterPassword(page);
  assert.equal(await page.innerText('h1'), 'Applied');
});

test('Without scripts a change is watched as well', {javaScriptEnabled: false}, async (page) => {
  await signIn(page);
  await fillStatic(page, ipv4Address(), '10.20.0.3');
  await apply(page);
  await page.waitForSelector('h1:text-is("Applied")', {timeout: 60000});
  await setStatic(ipv4Address());
  await ipv4ChangesOver();
});

test('A change that fails: the old values are marked, and the trace log says why', {user: 'admin'}, async (page) => {
  const before = addresses('inet');
  await withScript('ipv4Manager.sh', 'case "$*" in "-c -s "*) exit 2 ;; *) exec sh "$ORIGINAL" "$@" ;; esac', async () => {
    await fillStatic(page, '10.20.0.9');
    await apply(page);
    await page.waitForSelector('h1:text-is("Refused by the appliance")', {timeout: 60000});
    await ipv4ChangesOver();
  });
  const now = ipv4Address();
  assert.deepEqual(await rows(page), ['Obtained by|Static|Static|As wanted', `Address|10.20.0.9|${now}|Old value`,
    'Netmask|255.255.255.0|255.255.255.0|As wanted', 'Gateway|10.20.0.1|10.20.0.1|As wanted']);
  assert.match(await page.innerText('pre'), /Could not set network settings \(dhcp off\)\.:<0>/);
  assert.deepEqual(addresses('inet'), before);
  await page.click('text=Back, to try again');
  assert.equal(await page.inputValue('#ip'), '10.20.0.9', 'what was typed is there to be corrected');
});

// The setting is there before it is in force: stored by the first line, the script goes on for some seconds.
const stored = `SETTING=${applianceFolder}/AppManager/dat/ipv4; `
  + 'cp "$SETTING" "$SETTING.before"; printf "static %s\\n" "$3" >"$SETTING"; sleep 3;';

test('What only reads as wanted is not yet applied, and a change that fails at its end is none', {user: 'admin'}, async (page) => {
  const slow = `${stored} mv "$SETTING.before" "$SETTING"; exit 1`;
  await withScript('ipv4Manager.sh', `case "$*" in "-c -s "*) ${slow} ;; *) exec sh "$ORIGINAL" "$@" ;; esac`, async () => {
    await fillStatic(page, ipv4Address(), '10.20.0.2');
    await apply(page);
    await until(async () => (await rows(page))[3] === 'Gateway|10.20.0.2|10.20.0.2|As wanted', 'the stored gateway');
    assert.equal(await page.innerText('h1'), 'Applying');
    await page.waitForSelector('h1:text-is("Refused by the appliance")', {timeout: 60000});
  });
  assert.equal((await rows(page))[3], 'Gateway|10.20.0.2|10.20.0.1|Old value');
  const why = await page.innerText('pre');
  // Whoever reads settings meanwhile: what was said about this change stays.
  php('for ($i = 0; $i < 200; $i++) get_fw_settings($session);');
  await page.reload();
  assert.equal(await page.innerText('h1'), 'Refused by the appliance');
  assert.equal(await page.innerText('pre'), why);
});

test('The page goes to the new address also when the old one answers for some time', {user: 'admin'}, async (page) => {
  const slow = `${stored} exec sh "$ORIGINAL" "$@"`;
  await withScript('ipv4Manager.sh', `case "$*" in "-c -s "*) ${slow} ;; *) exec sh "$ORIGINAL" "$@" ;; esac`, async () => {
    await fillStatic(page, '10.20.0.9');
    await apply(page);
    await page.waitForURL('http://10.20.0.9/applying.php', {timeout: 60000});
  });
  await setStatic('10.20.0.8');
});

test('Under a name the page offers the new address, unless another machine publishes it', {user: 'admin'}, async (page, context) => {
  await fillStatic(page, '10.20.0.9');
  const {name, value} = await sessionCookie(context);
  await withScript('ipv4Manager.sh', 'case "$*" in "-c -s "*) exit 2 ;; *) exec sh "$ORIGINAL" "$@" ;; esac', async () => {
    await apply(page);
    const offered = (host) => new Promise((resolve) => {
      http.get(`${base()}applying.php`, {headers: {cookie: `${name}=${value}`, host}}, (answer) => {
        let body = '';
        answer.on('data', (data) => { body += data; });
        answer.on('end', () => resolve((body.match(/data-origin="([^"]*)"/) || ['', ''])[1]));
      });
    });
    assert.equal(await offered('library.example'), 'http://10.20.0.9');
    assert.equal(await offered('localhost:8080'), '');
    assert.equal(await offered('127.0.0.1'), '');
    await ipv4ChangesOver();
  });
});

test('A change that nobody writes down as failed is given up after its time', {user: 'admin'}, async (page) => {
  await withScript('ipv4Manager.sh', 'case "$*" in "-c -s "*) exit 0 ;; *) exec sh "$ORIGINAL" "$@" ;; esac', async () => {
    await fillStatic(page, '10.20.0.9');
    await apply(page);
    timeIsOver();
    await page.waitForSelector('h1:text-is("Not applied")');
    assert.match(await page.innerText('#outcome'), /^Not everything is as wanted, although the time for it is over\./);
    assert.equal((await rows(page))[1], `Address|10.20.0.9|${ipv4Address()}|Not as wanted`);
    assert.doesNotMatch(await page.innerText('pre'), /Could not/);
    await ipv4ChangesOver();
  });
});

test('A DHCP server that answers late is waited for, and one that does is enough', {user: 'admin'}, async (page) => {
  const unknown = 'echo "0.0.0.0?0.0.0.0?0.0.0.0"; exit 0';
  await withScript('ipv4Manager.sh', `case "$*" in "-c -d on") exit 0 ;; "-d status") if [ -e /run/no.server ]; then ${unknown}; fi; echo "10.20.0.140?255.255.255.0?10.20.0.1" ;; *) exec sh "$ORIGINAL" "$@" ;; esac`, async () => {
    fs.writeFileSync('/run/no.server', '');
    await open(page, 'ipv4.php');
    await page.check('#mode-dhcp');
    await page.selectOption('#trial', '0');
    await apply(page);
    timeIsOver();
    await page.waitForSelector('h1:text-is("Not applied")');
    assert.match(await page.innerText('#outcome'), /^No DHCP server has answered yet\. The appliance goes on asking\./);
    assert.deepEqual((await rows(page))[1], 'Address|From the DHCP server|None|Not as wanted');
    await ipv4ChangesOver();
    fs.unlinkSync('/run/no.server');
    await page.waitForSelector('h1:text-is("Applied")');
  });
});

test('Back to DHCP: the page finds the appliance again where it was with DHCP before', {user: 'admin'}, async (page) => {
  const old = ipv4Address();
  await open(page, 'ipv4.php');
  await page.check('#mode-dhcp');
  await page.selectOption('#trial', '0');
  await apply(page);
  assert.deepEqual(await rows(page), ['Obtained by|DHCP|Static|Not yet', `Address|From the DHCP server|${old}|Not yet`]);
  const lease = await until(() => ask('ipv4Manager.sh', '-d', 'status').match(/^(10\.20\.0\.1\d\d)\?/), 'a lease');
  await page.waitForURL(`http://${lease[1]}/applying.php`, {timeout: 60000});
  await page.waitForSelector('h1:text-is("Applied")');
  assert.deepEqual(await rows(page), ['Obtained by|DHCP|DHCP|As wanted', `Address|From the DHCP server|${lease[1]}|As wanted`]);
});

test('A static IPv6 address comes and goes, and the others stay', {user: 'admin'}, async (page) => {
  php('set_ipv6_enabled($session, true);');
  await open(page, 'ipv6.php');
  await page.check('#static');
  await page.fill('#ipStatic', '2001:DB8:20:0:0::7');
  await page.fill('#prefix', '64');
  await page.fill('#gateway', '2001:db8:20::1');
  await page.selectOption('#trial', '0');
  await apply(page);
  await page.waitForSelector('h1:text-is("Applied")', {timeout: 60000});
  assert.deepEqual((await rows(page))[1], 'Address|2001:DB8:20:0:0::7|2001:db8:20::7|As wanted');
  await until(() => addresses('inet6').includes('2001:db8:20::7/64'), 'the static address');
  await page.click('text=Back to the settings');
  assert.equal(await page.inputValue('#ipStatic'), '2001:db8:20::7');
  assert.match(await page.innerText('.addresses'), /2001:db8:20::7/);

  await page.uncheck('#static');
  await page.selectOption('#trial', '0');
  await apply(page);
  await page.waitForSelector('h1:text-is("Applied")', {timeout: 60000});
  assert.ok(!addresses('inet6').includes('2001:db8:20::7/64'));
  assert.equal(ask('ipv6Manager.sh', '-g', 'static'), '');
});

test('A static IPv6 address that the appliance refuses', {user: 'admin'}, async (page) => {
  await withScript('ipv6Manager.sh', 'case "$*" in "-c -s "*) exit 2 ;; *) exec sh "$ORIGINAL" "$@" ;; esac', async () => {
    await open(page, 'ipv6.php');
    await page.check('#static');
    await page.fill('#ipStatic', '2001:db8:20::7');
    await page.fill('#gateway', 'fe80::1');
  await page.selectOption('#trial', '0');
  await apply(page);
    await page.waitForSelector('h1:text-is("Refused by the appliance")', {timeout: 60000});
  });
  assert.match(await page.innerText('pre'), /Failed to enable static IPv6 address: :<\d+>/);
  php('set_ipv6_enabled($session, false);');
});

test('From one static IPv6 address to another: the page follows', {}, async (page) => {
  php('set_ipv6_enabled($session, true);');
  ask('ipv6Manager.sh', '-c', '-s', '2001:db8:20::7/64?2001:db8:20::1');
  await until(() => addresses('inet6').includes('2001:db8:20::7/64'), 'the address 2001:db8:20::7');
  await page.goto('http://[2001:db8:20::7]/ipv6.php');
  await enterPassword(page);
  await page.fill('#ipStatic', '2001:db8:20::8');
  // The module changes IPv6 at once: a device that is slower than this one lets the page come whole.
  await withScript('ipv6Manager.sh', 'case "$*" in "-c -s "*) sleep 2 ;; esac; exec sh "$ORIGINAL" "$@"', async () => {
  await page.selectOption('#trial', '0');
  await apply(page);
    await page.waitForURL('http://[2001:db8:20::8]/applying.php', {timeout: 60000});
  });
  await page.waitForSelector('h1:text-is("Applied")', {timeout: 60000});
  assert.deepEqual(await rows(page), ['Address|2001:db8:20::8|2001:db8:20::8|As wanted', 'In use|Yes|Yes|As wanted']);
  ask('ipv6Manager.sh', '-r');
  php('set_ipv6_enabled($session, false);');
});

test('A static IPv6 address while IPv6 is off is stored, and said to be no more than that', {javaScriptEnabled: false}, async (page) => {
  await signIn(page, 'admin', 'ipv6.php');
  await page.check('#static');
  assert.match(await page.innerText('[aria-labelledby=setting]'), /Not in force while IPv6 is off\. What is set here is kept/);
  await page.fill('#ipStatic', '2001:db8:20::7');
  await page.fill('#gateway', '2001:db8:20::1');
  await page.selectOption('#trial', '0');
  await apply(page);
  await page.waitForSelector('h1:text-is("Applied")', {timeout: 60000});
  assert.match(await page.innerText('#outcome'), /They come into force when IPv6 is switched on/);
  assert.equal(await page.locator('main a[href*="2001"]').count(), 0);
  ask('ipv6Manager.sh', '-r');
});

test('Nothing under way: the page says so', {user: 'monitor'}, async (page) => {
  fs.rmSync(`${applianceFolder}/HTTPService/dat/trial`, {force: true});
  await open(page, 'applying.php');
  assert.equal(await messages(page), 'No change is under way.');
});
