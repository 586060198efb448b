// The pictures of doc/pictures, taken anew: tests/pages/run pictures.cjs
'use strict';

const path = require('node:path');
const {php} = require('./appliance.cjs');
const {press, signIn, test} = require('./browser.cjs');

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

test('Applying an address', {viewport: wide, colorScheme: 'dark'}, async (page) => {
  await signIn(page, 'admin', 'ipv4.php');
  await page.check('#mode-static');
  await page.fill('#ip', '10.20.0.7');
  await press(page, 'Apply');
  await page.waitForFunction(() => document.querySelector('progress').value > 25);
  await take(page, 'applying');
  await page.waitForURL('http://10.20.0.7/applying.php', {timeout: 20000});
});

test('An error on a telephone', {viewport: narrow, colorScheme: 'light'}, async (page) => {
  await signIn(page, 'admin', 'dns.php');
  await page.fill('#dnsPrimary', '10.20.0.256');
  await press(page, 'Save');
  await take(page, 'dns-narrow');
});
