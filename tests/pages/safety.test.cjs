// What must not be possible.
'use strict';

const assert = require('node:assert/strict');
const {php, traceLog} = require('./appliance.cjs');
const {asksToSignIn, base, errorOf, messages, open, pages, press, sessionCookie, showCommunity, signIn, test} = require('./browser.cjs');

// Everything that can be changed, as text.
function settings() {
  return php('echo json_encode(array(get_network_configuration_ipv4($session), get_network_configuration_ipv6($session),'
    + 'is_ipv6_enabled(), is_stateless_enabled(), is_ipv6_dhcp_enabled(), get_network_dns($session), get_network_hostname(),'
    + 'get_ssl_settings($session), get_snmp_settings($session), get_snmp_trap_regs($session), get_eth2_port_settings($session)));');
}

// What every form would send to change something.
const changes = [
  ['ipv4.php', {change: 'name', hostname: 'changed'}],
  ['ipv4.php', {change: 'addressing', mode: 'static', ip: '10.20.0.66', netmask: '255.255.255.0', gateway: '10.20.0.1'}],
  ['ipv6.php', {change: 'ipv6', enabled: '1'}],
  ['ipv6.php', {change: 'ipv6', stateless: '', dhcp: '1'}],
  ['ipv6.php', {change: 'ipv6', static: '1', ipStatic: '2001:db8:20::66', prefix: '64', gateway: 'fe80::1'}],
  ['dns.php', {change: 'dns', dnsPrimary: '10.20.0.66', dnsSecondary: ''}],
  ['port.php', {change: 'port', auto: '', speed: '10', duplex: '0'}],
  ['security.php', {change: 'https', https: '1'}],
  ['snmp.php', {change: 'agent', version1: '', trap1: '1', community_name: 'changed'}],
  ['traps.php', {change: 'add', transport: '1', ip: '10.20.0.66', port: '162'}],
  ['traps.php', {change: 'delete', id: '00000000-00000000-00000000'}],
  ['traps.php', {change: 'test'}],
  ['backup.php', {change: 'download'}],
  ['backup.php', {change: 'upload'}],
  ['diagnostics.php', {change: 'ping', value: '10.20.0.1'}],
  ['diagnostics.php', {change: 'lookup', value: 'lan.test'}],
  ['applying.php', {change: 'keep', id: '0'}],
  ['applying.php', {change: 'undo', id: '0'}],
];

async function session(page, context) {
  const {name, value} = await sessionCookie(context);
  const token = await page.getAttribute('[name=token] >> nth=0', 'value');
  return {cookie: `${name}=${value}`, token};
}

function send(name, values, cookie) {
  return fetch(base() + name, {method: 'POST', body: new URLSearchParams(values), redirect: 'manual', headers: cookie ? {cookie} : {}});
}

// Sends every change; each must be answered with the status, and none may reach the module.
async function nothingChanges(status, cookie, token) {
  const before = settings();
  const logged = traceLog().length;
  for (const [name, values] of changes) {
    const answer = await send(name, token === undefined ? values : {...values, token}, cookie);
    assert.equal(answer.status, status, `${name} ${values.change}`);
  }
  assert.doesNotMatch(traceLog().slice(logged), /ntering (set|create|delete|restart)_/);
  assert.equal(settings(), before);
}

test('Without the token nothing is changed', {user: 'admin'}, async (page, context) => {
  const {cookie} = await session(page, context);
  await nothingChanges(403, cookie);
});

test('With another session\'s token nothing is changed', {user: 'admin'}, async (page, context) => {
  const other = await context.browser().newContext();
  const stranger = await other.newPage();
  await signIn(stranger);
  const {token} = await session(stranger, other);
  await other.close();
  const {cookie} = await session(page, context);
  await nothingChanges(403, cookie, token);
});

test('A form that is out of date says what to do', {user: 'admin'}, async (page) => {
  await open(page, 'dns.php');
  await page.evaluate(() => document.querySelectorAll('[name=token]').forEach((field) => { field.value = '0'; }));
  await press(page, 'Save');
  assert.match(await page.innerText('main'), /Nothing was changed[^]*Open the page again and repeat the change/);
});

test('The role monitor changes nothing, whatever it sends', {user: 'monitor'}, async (page, context) => {
  const {cookie, token} = await session(page, context);
  await nothingChanges(403, cookie, token);
});

test('The role monitor sees everything, and no button to change it', {user: 'monitor'}, async (page) => {
  // The account is everybody's own: see account.test.cjs.
  for (const name of pages.filter((other) => other !== 'account.php')) {
    await open(page, name);
    assert.equal(await messages(page), '', name);
    assert.ok((await page.innerText('main')).length > 60, name);
    const buttons = await page.locator('main form[method=post] button, main details:not(.fold) > summary').count();
    assert.equal(buttons, 0, name);
    assert.equal(await page.locator('main form[method=post], main fieldset :is(input, select, textarea), main input[type=hidden]').count(), 0, `${name} has no form`);
    assert.doesNotMatch(await page.innerText('main'), /\bChange\b/, name);
    const reasons = (await page.innerText('main')).match(/needs the role admin/g) ?? [];
    assert.equal(reasons.length, ['index.php', 'diagnostics.php'].includes(name) ? 0 : 1, `${name} says once why`);
  }
  await page.click('nav a:text-is("SNMP agent"):visible');
  assert.deepEqual(await page.locator('.shown').evaluateAll((all) => all.map((one) => [...one.children].slice(0, 2)
    .map((part) => part.innerText).join(': '))), [['Versions 1 and 2c', 'version1'], ['Version 1', 'trap1'], ['Version 2c', 'trap2'],
    ['Send a trap when a request carries a wrong community', 'auth_traps_enabled']].map(([label, name]) =>
    `${label}: ${JSON.parse(php('echo json_encode(get_snmp_settings($session));'))[name] ? 'On' : 'Off'}`));
  await open(page, 'ipv4.php');
  assert.match(await page.innerText('[aria-labelledby=name]'), /Name\s+library\s/);
  await open(page, 'index.php');
  assert.equal(await page.locator('.more a:text-is("Show DNS")').count(), 1);
});

test('Who is signed out changes nothing, and learns that it was not saved', {}, async (page, context) => {
  await nothingChanges(403, '', '0');
  await nothingChanges(403, 'settings=abcdefabcdefabcdefabcdefabcdefab', '0');
  await signIn(page);
  await open(page, 'dns.php');
  await context.clearCookies();
  await press(page, 'Save');
  assert.equal(await asksToSignIn(page), 'What you sent was not saved. It is in the form again when you have signed in.');
});

test('Reading a page changes nothing', {user: 'admin'}, async (page, context) => {
  const {cookie, token} = await session(page, context);
  const before = settings();
  for (const [name, values] of changes) {
    const answer = await fetch(`${base()}${name}?${new URLSearchParams({...values, token})}`, {headers: {cookie}});
    assert.equal(answer.status, 200, name);
  }
  assert.equal((await fetch(`${base()}signout.php`, {headers: {cookie}, redirect: 'manual'})).status, 303);
  assert.match(await (await fetch(`${base()}index.php`, {headers: {cookie}})).text(), /<nav/, 'still signed in');
  assert.equal(settings(), before);
});

test('Every answer carries the headers that keep it to itself', {user: 'admin'}, async (page, context) => {
  const {cookie} = await session(page, context);
  const answers = [['signin.php', ''], ['index.php', ''], ...[...pages, 'applying.php'].map((name) => [name, cookie])];
  for (const [name, own] of answers) {
    const {headers} = await fetch(base() + name, {redirect: 'manual', headers: own ? {cookie: own} : {}});
    assert.match(headers.get('content-security-policy'),
      /^default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self'; connect-src 'self' ?; form-action 'self'; base-uri 'none'; frame-ancestors 'none'$/, name);
    assert.equal(headers.get('x-content-type-options'), 'nosniff', name);
    assert.equal(headers.get('x-frame-options'), 'DENY', name);
    assert.equal(headers.get('referrer-policy'), 'no-referrer', name);
    assert.equal(headers.get('cache-control'), 'no-store', name);
    assert.equal(headers.get('x-powered-by'), null, name);
  }
  for (const name of ['style.css', 'pages.js', 'icon.svg']) {
    const {status, headers} = await fetch(base() + name);
    assert.equal(status, 200, name);
    assert.equal(headers.get('x-content-type-options'), 'nosniff', name);
    assert.equal(headers.get('cache-control'), 'max-age=86400', name);
  }
  const {status, headers} = await send('dns.php', {}, cookie);
  assert.equal(status, 403);
  assert.match(headers.get('content-security-policy'), /^default-src 'none'/);
});

const script = '"><script>document.title="run"</script><img src=x onerror="document.title=\'run\'">';

test('A script in any field is shown as text', {}, async (page) => {
  await signIn(page);
  const forms = [['ipv4.php', 'Save name', ['hostname']], ['ipv4.php', 'Apply', ['ip', 'netmask', 'gateway']],
    ['ipv6.php', 'Apply', ['ipStatic', 'prefix', 'gateway']], ['dns.php', 'Save', ['dnsPrimary', 'dnsSecondary']],
    ['snmp.php', 'Save', ['community_name']], ['traps.php', 'Add', ['ip', 'port']]];
  for (const [name, button, fields] of forms) {
    await open(page, name);
    for (const mark of ['#mode-static', '#enabled', '#static']) if (await page.locator(mark).count()) await page.check(mark);
    if (name === 'snmp.php') await showCommunity(page);
    await page.evaluate(() => document.querySelectorAll('[maxlength]').forEach((field) => field.removeAttribute('maxlength')));
    for (const field of fields) await page.fill(`#${field}`, script);
    await press(page, button);
    assert.doesNotMatch(await page.title(), /run/, name);
    assert.equal(await page.locator('main script, main img').count(), 0, name);
    for (const field of fields) {
      assert.equal(await page.inputValue(`#${field}`), script, `${name} ${field}`);
      assert.notEqual(await errorOf(page, field), '', `${name} ${field}`);
    }
  }
  await open(page, `diagnostics.php?filter=${encodeURIComponent(script)}&live=${encodeURIComponent(script)}`);
  assert.equal(await page.inputValue('#filter'), script);
  assert.equal(await page.locator('main script, main img').count(), 0);
  await page.fill('#filter', '</pre><script>');
  await page.waitForSelector('#log >> text=No line has this text.');
  await press(page, 'Sign out');
  await page.evaluate((value) => { document.querySelector('[name=next]').value = value; }, script);
  await page.fill('#user', script);
  await page.fill('#password', 'wrong');
  await press(page, 'Sign in');
  assert.equal(await page.inputValue('#user'), script);
  assert.doesNotMatch(await page.title(), /run/);
});

test('A script that the appliance itself has stored or logged is shown as text', {user: 'admin'}, async (page) => {
  php('$settings = get_snmp_settings($session); $settings->community_name = "<script>alert(1)</script>";'
    + 'set_snmp_settings($session, $settings); create_snmp_trap_reg($session, 1, "<img src=x>", "162");');
  await open(page, 'snmp.php');
  assert.equal(await page.inputValue('#community_name'), '<script>alert(1)</script>');
  await open(page, 'diagnostics.php?live=0&filter=alert');
  assert.match(await page.innerText('#log'), /setting community name::<<script>alert\(1\)<\/script>>/);
  await open(page, 'diagnostics.php?live=0&filter=New+Trap');
  assert.match(await page.innerText('#log'), /New Trap IP was:<<img src=x>>/);
  assert.match(await page.innerText('table'), /Tried to add the trap receiver <img src=x>, port 162, UDP/);
  assert.equal(await page.locator('main script, main img').count(), 0);
  php('$settings = get_snmp_settings($session); $settings->community_name = "public"; set_snmp_settings($session, $settings);');
});

test('What is no text, or not UTF-8, is taken for empty or shown harmlessly', {user: 'admin'}, async (page, context) => {
  const {cookie, token} = await session(page, context);
  const list = await send('dns.php', [['token', token], ['dnsPrimary[]', '1'], ['dnsSecondary[a]', '2']], cookie);
  assert.equal(list.status, 303);
  const bytes = await fetch(`${base()}ipv4.php`, {method: 'POST', headers: {cookie, 'content-type': 'application/x-www-form-urlencoded'},
    body: `token=${token}&change=name&hostname=%ff%fe%00a`});
  const text = await bytes.text();
  assert.match(text, /Use only letters/);
  assert.match(text, /<\/html>/);
});

test('A host of somebody else\'s in the request is not taken up', {user: 'admin'}, async (page, context) => {
  const {cookie} = await session(page, context);
  const http = require('node:http');
  const text = await new Promise((resolve) => {
    http.get(`${base()}security.php`, {headers: {cookie, host: 'evil.example"><script>'}}, (answer) => {
      let body = '';
      answer.on('data', (data) => { body += data; });
      answer.on('end', () => resolve(body));
    });
  });
  assert.doesNotMatch(text, /evil/);
});
