// The browser, and what every test of a page needs of it.
'use strict';

const fs = require('node:fs');
const nodeTest = require('node:test');
const tls = require('node:tls');
const {HtmlValidate} = require('html-validate');
const {chromium, firefox} = require('playwright-core');
const appliance = require('./appliance.cjs');

const failures = `${process.env.PAGES_TEST_FOLDER}/failures`;
const flags = ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
  '--disable-background-networking', '--disable-component-update', '--disable-sync'];
const axe = fs.readFileSync(require.resolve('axe-core/axe.min.js'), 'utf8');
const pages = ['index.php', 'ipv4.php', 'ipv6.php', 'dns.php', 'port.php', 'security.php', 'snmp.php', 'traps.php',
  'backup.php', 'diagnostics.php', 'account.php'];

const browsers = {
  chromium: () => chromium.launch({executablePath: '/usr/bin/chromium-headless-shell', args: flags}),
  // Debian's, told what to do by the protocol that browsers have in common: that is what the channel stands for.
  firefox: () => firefox.launch({channel: 'moz-firefox', executablePath: '/usr/bin/firefox-esr', timeout: 120000}),
};
const validator = new HtmlValidate(require('./htmlvalidate.json'));
const delivered = new WeakMap(); // page => the answer that it shows
let kind = 'chromium';
let browser; // from the first test on
nodeTest.after(() => browser?.close());

// For all tests of a file.
function useFirefox() {
  kind = 'firefox';
}

function base(scheme = 'http') {
  return `${scheme}://${appliance.ipv4Address()}/`;
}

// A test with a page of its own. What a page, or the interpreter, reports as a fault of the pages fails the test, and a
// picture of it is kept. options: those of a browser context, and "user" to be signed in as: in a session that other tests use
// too, so that it must not be ended; and "expected": which lines of the interpreter the test causes itself.
function test(name, options, work) {
  nodeTest.test(name, async () => {
    const {user, expected, ...contextOptions} = options;
    browser ??= await browsers[kind]();
    const context = await browser.newContext({reducedMotion: 'reduce', ignoreHTTPSErrors: true, ...contextOptions});
    context.setDefaultTimeout(60000);
    // A form with changes asks before it is left.
    context.on('dialog', (dialog) => dialog.accept());
    const page = await context.newPage();
    const faults = [];
    const logged = appliance.errorLog().length;
    page.on('response', (answer) => {
      if (answer.request().isNavigationRequest() && answer.frame() === page.mainFrame()) delivered.set(page, answer);
    });
    page.on('pageerror', (error) => {
      // Firefox says so of an address at which nobody answers.
      if (!error.message.endsWith('(Reason: CORS request did not succeed). Status code: (null).')) faults.push(error.message);
    });
    page.on('console', (message) => {
      if (/Content Security Policy/.test(message.text())) faults.push(message.text());
    });
    try {
      if (user) await resume(page, user);
      await work(page, context);
      // What the interpreter has to say of the pages is in the web server's log.
      faults.push(...appliance.errorLog().slice(logged).split('\n').filter((line) => /PHP|htdocs|on line/.test(line)
        && !expected?.test(line)));
      if (faults.length > 0) throw new Error(`The browser or the web server reports: ${faults.join('; ')}`);
    } catch (error) {
      fs.mkdirSync(failures, {recursive: true});
      const picture = `${failures}/${name.replace(/[^A-Za-z0-9]+/g, '-')}.png`;
      await page.screenshot({path: picture, fullPage: true}).catch(() => {});
      throw error;
    } finally {
      await context.close();
    }
  });
}

// As a user who has signed in before, at this address.
const cookies = new Map();

async function resume(page, user) {
  const who = `${user} at ${base()}`;
  if (!cookies.has(who)) {
    await signIn(page, user);
    cookies.set(who, await page.context().cookies());
  }
  await page.context().addCookies(cookies.get(who));
  await page.goto(base());
  // Tests of sessions end those of others, too.
  if (await page.locator('form[action="signin.php"]').count() > 0) {
    await enterPassword(page, user);
    cookies.set(who, await page.context().cookies());
  }
}

async function signIn(page, user = 'admin', next = 'index.php', scheme = 'http') {
  await page.goto(`${base(scheme)}${next}`);
  await enterPassword(page, user);
}

async function enterPassword(page, user = 'admin') {
  await page.fill('#user', user);
  await page.fill('#password', appliance.accounts.get(user));
  await press(page, 'Sign in');
  await page.waitForSelector('.layout');
}

// Of the pages' cookies the one that says which session it is.
async function sessionCookie(context) {
  const found = (await context.cookies()).filter(({name}) => /^(__Host-)?settings$/.test(name));
  if (found.length !== 1) throw new Error(`${found.length} cookies of a session`);
  return found[0];
}

// The read community is seen on a click.
async function showCommunity(page) {
  if (!await page.isVisible('#community_name')) await page.click('summary:has-text("Read community")');
}

// Whether the page asks to sign in, and what it says about that.
async function asksToSignIn(page) {
  await page.waitForSelector('form[action="signin.php"]');
  return page.innerText('main [role=status]');
}

async function open(page, name) {
  const address = new URL(name, page.url()).href;
  await page.goto(address).catch((error) => {
    // A page that goes on by itself just then.
    if (!/interrupted by another navigation/.test(error.message)) throw error;
    return page.goto(address);
  });
}

// Presses the button (within the element, when there are several) and waits for the page that comes of it.
async function press(page, label, within = 'body') {
  const navigated = page.waitForNavigation();
  await page.click(`${within} >> button:text-is("${label}"):visible`);
  await navigated;
}

// With what is folded in them.
async function messages(page) {
  await page.evaluate(() => document.querySelectorAll('#messages .details').forEach((details) => { details.open = true; }));
  return page.innerText('#messages');
}

// The sentence that is tied to a field for everybody.
async function errorOf(page, field) {
  return page.evaluate((id) => {
    const input = document.getElementById(id) || document.querySelector(`[name="${id}"]`);
    const holder = input.closest('[aria-invalid=true]');
    if (!holder) return '';
    return holder.getAttribute('aria-describedby').split(' ').filter((name) => name.endsWith('-error'))
      .map((name) => document.getElementById(name).innerText.trim()).join(' ');
  }, field);
}

// The value beside a term of a list of terms, or beside a row's heading.
function beside(page, term) {
  return page.evaluate((wanted) => {
    const terms = [...document.querySelectorAll('dt')].filter((item) => item.innerText.trim() === wanted);
    if (terms.length !== 1) throw new Error(`${terms.length} times "${wanted}"`);
    const values = [];
    for (let item = terms[0].nextElementSibling; item && item.tagName === 'DD'; item = item.nextElementSibling) {
      values.push(item.innerText.trim());
    }
    return values.join(', ');
  }, term);
}

function certificate() {
  return new Promise((resolve, reject) => {
    const socket = tls.connect({host: appliance.ipv4Address(), port: 443, rejectUnauthorized: false}, () => {
      resolve(socket.getPeerCertificate());
      socket.destroy();
    });
    socket.on('error', reject);
  });
}

// Until the web server serves the pages with, or without, encryption.
function served(scheme) {
  return appliance.until(async () => {
    try {
      if (scheme === 'https') return await certificate();
      return (await fetch(base(), {redirect: 'manual'})).status === 200;
    } catch {
      return false;
    }
  }, `the pages by ${scheme}`);
}

// What axe finds wrong, each as a sentence.
async function accessibilityFaults(page) {
  if (!await page.evaluate(() => 'axe' in window)) await page.evaluate(axe);
  const {violations} = await page.evaluate(() => window.axe.run(document, {resultTypes: ['violations']}));
  return violations.map((violation) =>
    `${violation.id}: ${violation.help} (${violation.nodes.map((node) => node.target.join(' ')).join(', ')})`);
}

// What is no valid HTML in the page as the appliance has sent it, each as a sentence with its line.
async function markupFaults(page) {
  const text = await delivered.get(page).text();
  const {results} = await validator.validateString(text, page.url());
  return results.flatMap(({messages: all}) => all.map(({line, message, ruleId}) =>
    `${ruleId}: ${message} (${text.split('\n')[line - 1].trim()})`));
}

module.exports = {accessibilityFaults, asksToSignIn, base, beside, certificate, enterPassword, errorOf, markupFaults, messages, open, pages,
  press, served, sessionCookie, showCommunity, signIn, test, useFirefox};
