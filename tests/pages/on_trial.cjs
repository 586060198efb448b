// What the tests of changes on trial share: the record, the forms, the other devices of the LAN, and clients that are no browser.
'use strict';

const assert = require('node:assert/strict');
const fs = require('node:fs');
const http = require('node:http');
const {accounts, applianceFolder, ask, fromLan, inAppliance, ipv4Address, until, web, writeAsPages} = require('./appliance.cjs');
const {open, press} = require('./browser.cjs');

const record = `${applianceFolder}/HTTPService/dat/trial`;
// What a program in PHP begins with that does what the pages do.
const pages = `require "${web}/shared/page.php"; $session = new Session(); $session->user = "admin"; $session->role = "admin";`;

// A field of the record of the change on trial.
function trial(field) {
  const text = fs.existsSync(record) ? fs.readFileSync(record, 'utf8') : '';
  const found = text.match(new RegExp(`"${field}";(?:s:\\d+:"([^"]*)"|i:(\\d+))`));
  return found ? found[1] ?? found[2] : '';
}

// Begins a trial of a setting that nothing waits for: router advertisements, off. Returns its id.
function beginModes(seconds = 300, watched = 'true') {
  const said = inAppliance('php', '-r', `${pages} require "${web}/shared/applying.php";
    $before = settings_of($session, "ipv6"); $wanted = $before; $wanted["stateless"] = false;
    $record = new_trial($session, "ipv6", array("stateless" => "Off"), $before, "", "", ${seconds});
    $record["wanted"] = $wanted;
    if (!$before["stateless"] || !begin_trial($record) || !${watched}) { echo "no trial"; exit; }
    put_back($session, "ipv6", $wanted); ended_at_once($record); echo $record["id"];`);
  assert.match(said, /^[0-9a-f]{16}$/);
  return said;
}

// With a watcher.
function beginWatchedModes(seconds) {
  return beginModes(seconds, 'is_being_watched($record)');
}

// Its lines: user, client, operation, details.
function audit() {
  return fs.readFileSync(`${applianceFolder}/HTTPService/dat/audit`, 'utf8').trim().split('\n').map((line) => line.split('\t').slice(1));
}

// Writes another number of the record down.
function shift(field, difference) {
  const text = fs.readFileSync(record, 'utf8');
  const changed = text.replace(new RegExp(`"${field}";i:(\\d+);`), (all, number) => `"${field}";i:${Math.max(1, number - difference)};`);
  assert.notEqual(changed, text, field);
  writeAsPages(`${record}.test`, changed);
  fs.renameSync(`${record}.test`, record);
}

// Lets so many seconds of the trial be over.
function passes(seconds) {
  shift('uptime', seconds);
  shift('began', seconds);
}

// Until the trial is in this state.
function reaches(state, seconds = 60) {
  return until(() => trial('state') === state, `the trial to be ${state}`, seconds);
}

// The appliance answers there.
async function answersAt(ip) {
  const page = await until(() => fetch(`http://${ip}/index.php`, {signal: AbortSignal.timeout(1000)}).then((answer) => answer.text())
    .catch(() => ''), `an answer of ${ip}`);
  assert.match(page, /action="signin\.php"/, ip);
  assert.equal(ipv4Address(), ip);
}

// Nobody is back any more, nearly all of the time is over: the settings of before come back.
async function isUndone(ip = '10.20.0.7') {
  await reaches('trial');
  passes(55);
  await reaches('undone');
  assert.equal(trial('why'), 'time');
  await answersAt(ip);
}

async function isUndoneWithTabClosed(page, ip) {
  await page.goto('about:blank');
  await isUndone(ip);
}

async function setStatic(ip) {
  ask('ipv4Manager.sh', '-c', '-s', `${ip}?255.255.255.0?10.20.0.1`);
  await until(() => ipv4Address() === ip, `the address ${ip}`);
}

async function fillStatic(page, ip, gateway = '10.20.0.1', seconds = '60') {
  await open(page, 'ipv4.php');
  await page.check('#mode-static');
  await page.fill('#ip', ip);
  await page.fill('#netmask', '255.255.255.0');
  await page.fill('#gateway', gateway);
  await page.selectOption('#trial', seconds);
}

// Sends the form, past the step at which the appliance warns.
async function applyIfFree(page) {
  await press(page, 'Apply');
  if (await page.innerText('h1') === 'Before it is applied') await press(page, 'Apply');
}

async function apply(page) {
  await applyIfFree(page);
  assert.equal(await page.innerText('h1'), 'Applying');
}

async function applyDhcp(page) {
  await open(page, 'ipv4.php');
  await page.check('#mode-dhcp');
  await page.selectOption('#trial', '60');
  await apply(page);
}

// Nothing is on trial any longer.
async function keepWhatIs() {
  if (trial('state') === 'trial' || trial('state') === 'applying') passes(400);
  await until(() => ['', 'kept', 'undone', 'refused'].includes(trial('state')), 'the end of the trial');
}

// Another device of the LAN under an address, while the work is done; with a web server when there is an answer: a text, or a
// function that makes one of the request's address.
async function withOtherDevice(ip, answer, work) {
  fromLan('ip', 'address', 'add', `${ip}/32`, 'dev', 'lan0');
  const asked = [];
  const server = http.createServer(async (request, response) => {
    asked.push(request.url);
    response.setHeader('Access-Control-Allow-Origin', '*');
    response.end(typeof answer === 'function' ? await answer(request.url) : answer);
  });
  try {
    if (answer) await new Promise((resolve) => server.listen(80, ip, resolve));
    await work(asked);
  } finally {
    server.closeAllConnections();
    server.close();
    fromLan('ip', 'address', 'del', `${ip}/32`, 'dev', 'lan0');
  }
}

// While the work is done, the LAN's DHCP server treats the appliance so: "ignore", or the address that it gives, each address
// once.
let orders = 0;
async function withDhcpServer(order, work) {
  const [device] = JSON.parse(fromLan('nsenter', '--net=/run/appliance/appliance.net', '--', 'ip', '-json', 'link', 'show', 'eth0'));
  // Of several files the server follows the one that came last; it takes no address twice.
  const says = async (text) => {
    orders += 1;
    fs.writeFileSync(`/run/appliance/lan.hosts/${orders}.test`, `${device.address}${text}\n`);
    await until(() => fs.readFileSync('/run/appliance/lan.log', 'utf8').includes(`/${orders}.test`), 'the DHCP server to know it');
  };
  await says(`,${order}`);
  try {
    await work();
  } finally {
    await says('');
  }
}

// Somebody who asks the appliance without a browser, from an address of the LAN.
class Client {
  constructor(localAddress) {
    this.localAddress = localAddress;
    this.cookies = new Map();
    this.headers = {};
  }

  // Fields: what is posted; without them the address is fetched. Redirects are not followed.
  ask(address, fields) {
    const headers = {...this.headers, cookie: [...this.cookies].map((pair) => pair.join('=')).join('; ')};
    if (fields) headers['content-type'] = 'application/x-www-form-urlencoded';
    return new Promise((resolve, reject) => {
      const request = http.request(address, {method: fields ? 'POST' : 'GET', headers, localAddress: this.localAddress, timeout: 60000,
        agent: false}, (answer) => {
        let text = '';
        answer.setEncoding('utf8').on('data', (data) => { text += data; }).on('error', reject).on('end', () => {
          for (const cookie of answer.headers['set-cookie'] ?? []) this.cookies.set(...cookie.split(';')[0].split('='));
          resolve({status: answer.statusCode, location: answer.headers.location ?? '', text});
        });
      });
      request.on('error', reject).on('timeout', () => request.destroy(new Error(`${address} is silent`)));
      request.end(fields ? new URLSearchParams(fields).toString() : undefined);
    });
  }

  async hidden(address, name) {
    const {text} = await this.ask(address);
    return (text.match(new RegExp(`name="${name}" value="([^"]*)"`)) ?? ['', ''])[1];
  }

  async signIn(ip, user = 'admin') {
    const token = await this.hidden(`http://${ip}/index.php`, 'token');
    const {location} = await this.ask(`http://${ip}/signin.php`, {token, user, password: accounts.get(user)});
    assert.equal(location, 'index.php', `${user} is signed in`);
  }
}

module.exports = {answersAt, apply, applyDhcp, applyIfFree, audit, beginModes, beginWatchedModes, Client, fillStatic, isUndone,
  isUndoneWithTabClosed, keepWhatIs, pages, passes, reaches, record, setStatic, shift, trial, withDhcpServer, withOtherDevice};
