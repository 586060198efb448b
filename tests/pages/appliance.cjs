// The appliance as it is apart from its pages: what the tests compare the pages with.
'use strict';

const {execFileSync, spawn} = require('node:child_process');
const fs = require('node:fs');
const path = require('node:path');

const applianceFolder = '/home/embedded/library';
const web = `${applianceFolder}/HTTPService/lighttpd`;

const accounts = new Map(process.env.PAGES_TEST_ACCOUNTS.split('\n').map((line) => line.split(' ')));

// Runs a command, and returns what it says. What it says on standard error is shown only when it fails.
function fromLan(...command) {
  return execFileSync(command[0], command.slice(1), {encoding: 'utf8', stdio: ['ignore', 'pipe', 'pipe']}).trim();
}

// Runs a program as the interpreter of the pages does: with its user, and no rights.
const asPages = ['sh', `${applianceFolder}/AppManager/bin/asUser.sh`, 'pages'];

// In the appliance's network; this process is on the LAN.
function inAppliance(...command) {
  return fromLan('nsenter', '--net=/run/appliance/appliance.net', '--', ...command[0] === 'php' ? asPages : [], ...command);
}

function addresses(family) {
  const [device] = JSON.parse(inAppliance('ip', '-json', 'address', 'show', 'dev', 'eth0', 'scope', 'global'));
  return device.addr_info.filter((entry) => entry.family === family && !entry.tentative)
    .map((entry) => `${entry.local}/${entry.prefixlen}`);
}

function ipv4Address() {
  return addresses('inet').map((address) => address.split('/')[0])[0];
}

// What a device script says to a question.
function ask(script, ...options) {
  return inAppliance('sh', `${applianceFolder}/AppManager/bin/${script}`, ...options);
}

// Calls functions of the module as a page does.
function php(code) {
  return inAppliance('php', '-r', `class Session { var $user = 'tests'; } $session = new Session(); ${code}`);
}

function traceLog() {
  return fs.readFileSync(`${web}/logs/php_extension.log`, 'utf8');
}

function errorLog() {
  return fs.readFileSync(`${web}/logs/error.log`, 'utf8');
}

// Resolves as soon as the condition holds; what it may wait for has no event to be told by.
async function until(condition, what, seconds = 60) {
  const end = Date.now() + seconds * 1000;
  for (;;) {
    const value = await condition();
    if (value) return value;
    if (Date.now() > end) throw new Error(`Waited ${seconds} seconds for ${what}.`);
    await new Promise((resolve) => setTimeout(resolve, 100));
  }
}

// Until every change of IPv4 that was begun has come to its end, well or badly: none may meet the next test.
function ipv4ChangesOver() {
  const times = (pattern) => (traceLog().match(pattern) || []).length;
  return until(() => times(/Firing off the thread to Set Network settings:/g)
    === times(/Leaving set_network_ipv4|Could not set library hostname:<0>|Could not set network settings/g), 'the changes of IPv4');
}

// Writes a file that is the pages' as they would have written it: this process is root's.
function writeAsPages(file, text, options) {
  fs.writeFileSync(file, text, options);
  const folder = fs.statSync(path.dirname(file));
  fs.chownSync(file, folder.uid, folder.gid);
}

// Puts another script in the place of a device script while the work is done; $ORIGINAL is that script.
async function withScript(name, text, work) {
  // One of them lies elsewhere.
  const place = [`${applianceFolder}/AppManager/bin/${name}`, `${applianceFolder}/${name}`].find((one) => fs.existsSync(one));
  const original = fs.readFileSync(place);
  fs.writeFileSync(`${place}.original.sh`, original, {mode: 0o755});
  // One that needs root's rights gets them under its own name only.
  const rights = original.includes('\nbehind_the_door ')
    ? '[ -n "${BEHIND_THE_DOOR-}" ] || [ ! -S /run/appmanager/door ] || exec /usr/bin/cmdwrap /bin/sh "$0" "$@"\n' : '';
  fs.writeFileSync(place, `#!/bin/sh\n${rights}ORIGINAL=${place}.original.sh\n${text}\n`);
  try {
    await work();
  } finally {
    fs.writeFileSync(place, original);
    fs.unlinkSync(`${place}.original.sh`);
  }
}

// Datagrams that reach a port of the LAN side while the work is done.
async function datagramsTo(port, work) {
  const listener = spawn('socat', ['-u', `UDP4-RECV:${port},reuseaddr`, 'STDOUT'], {stdio: ['ignore', 'pipe', 'inherit']});
  let received = Buffer.alloc(0);
  listener.stdout.on('data', (data) => { received = Buffer.concat([received, data]); });
  await until(() => fromLan('ss', '-Hnlu', `sport = :${port}`) !== '', `a listener at port ${port}`);
  try {
    return await work(() => received);
  } finally {
    listener.kill();
  }
}

module.exports = {accounts, addresses, applianceFolder, asPages, ask, datagramsTo, errorLog, fromLan, inAppliance, ipv4Address,
  ipv4ChangesOver, php, traceLog, until, web, withScript, writeAsPages};
