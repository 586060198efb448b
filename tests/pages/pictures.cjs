// The pictures of doc/pictures, taken anew: tests/pages/run --pictures
'use strict';

const fs = require('node:fs');
const path = require('node:path');
const {applianceFolder, php, writeAsPages} = require('./appliance.cjs');
const {press, signIn, test} = require('./browser.cjs');

// The rest of the trial is not to be waited for.
function passes(seconds) {
  const record = `${applianceFolder}/HTTPService/dat/trial`;
  const text = fs.readFileSync(record, 'utf8');
  writeAsPages(record, text.replace(/"began";i:(\d+);/, (all, began) => `"began";i:${began - seconds};`));
}

const folder = path.resolve(__dirname, '../../doc/pictures');
const wide = {width: 1280, height: 800};
const narrow = {width: 390, height: 844};

function take(page, name) {
  return page.screenshot({path: `${folder}/${name}.png`});
}

test('Overview', {viewport: wide, colorScheme: 'light'}, async (page) => {
  php('set_ipv6_enabled($session, true); create_snmp_trap_reg($session, 1, "10.20.0.1", "162");');
  await signIn(page);
  await page.waitForFunction(() => document.body.innerText.includes('2001:db8:20:') || location.reload());
  await take(page, 'overview');
});

test('An address in a wrong network, on trial', {viewport: wide, colorScheme: 'light'}, async (page) => {
  await signIn(page, 'admin', 'ipv4.php');
  await page.check('#mode-static');
  await page.fill('#ip', '10.20.9.7');
  await page.fill('#gateway', '10.20.9.1');
  await page.selectOption('#trial', '60');
  await press(page, 'Apply');
  await press(page, 'Apply');
  await page.waitForSelector('[data-when-lost]:visible', {timeout: 60000});
  await take(page, 'trial');
  passes(55);
  await page.waitForSelector('h1:text-is("Undone")', {timeout: 60000});
});

test('An address that its maker has reached', {viewport: narrow, colorScheme: 'dark'}, async (page) => {
  await signIn(page, 'admin', 'ipv4.php');
  await page.check('#mode-static');
  await page.fill('#ip', '10.20.0.7');
  await press(page, 'Apply');
  await press(page, 'Apply'); // that the name servers go is said before
  await page.waitForURL('http://10.20.0.7/applying.php', {timeout: 60000});
  await page.waitForSelector('h1:text-is("Kept")');
  await take(page, 'kept-narrow');
});

test('An error on a telephone', {viewport: narrow, colorScheme: 'light'}, async (page) => {
  await signIn(page, 'admin', 'dns.php');
  await page.fill('#dnsPrimary', '10.20.0.256');
  await press(page, 'Save');
  await take(page, 'dns-narrow');
});
