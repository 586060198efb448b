// What the web server itself has to say looks like the pages, and so does a page that dies.
'use strict';

const assert = require('node:assert/strict');
const fs = require('node:fs');
const net = require('node:net');
const {fromLan, ipv4Address, until, web} = require('./appliance.cjs');
const {accessibilityFaults, base, open, test} = require('./browser.cjs');

// What the web server answers to these very bytes.
function answerTo(text) {
  return new Promise((resolve, reject) => {
    const socket = net.connect(80, ipv4Address(), () => socket.write(text));
    let answer = '';
    socket.setEncoding('utf8').on('data', (data) => { answer += data; }).on('end', () => resolve(answer)).on('error', reject);
  });
}

// The page of an error, in its style.
async function looksLikeThePages(page, title) {
  assert.equal(await page.innerText('h1'), title);
  assert.equal(await page.title(), `Error: ${title}`);
  const {radius, ground} = await page.evaluate(() => ({radius: getComputedStyle(document.querySelector('.message')).borderRadius,
    ground: getComputedStyle(document.body).backgroundColor}));
  assert.equal(radius, '10px', 'it has the style');
  assert.equal(ground, 'rgb(244, 246, 249)');
  assert.deepEqual(await accessibilityFaults(page), []);
}

test('Each error has a page with a way back, and none is like another', {}, () => {
  const titles = ['400', '403', '404', '405', '413', '414', '416', '421', '431', '500', '501', '503'].map((status) => {
    const text = fs.readFileSync(`${web}/errors/${status}.html`, 'utf8');
    assert.match(text, /^<!DOCTYPE html>[^]*<link rel="stylesheet" href="\/style\.css">[^]*<a href="\/">To the overview<\/a>/, status);
    assert.doesNotMatch(text, /<script|style=|https?:/, status);
    return text.match(/<h1>(.*)<\/h1>/)[1];
  });
  assert.equal(new Set(titles).size, titles.length);
});

test('A page that is not there, wherever it would be', {}, async (page) => {
  for (const name of ['nothing', 'nothing.php', 'deep/down/nothing.html', 'errors/404.html']) {
    const answer = await page.goto(base() + name);
    assert.equal(answer.status(), 404, name);
    await looksLikeThePages(page, 'There is no such page');
  }
  await page.click('text=To the overview');
  await page.waitForSelector('form[action="signin.php"]');
});

test('What is no request, and what the web server does not do', {}, async () => {
  assert.match(await answerTo('GET / HTTP/1.1\r\nHost: a b\r\nConnection: close\r\n\r\n'),
    /^HTTP\/1\.1 400 [^]*<h1>This request is not understood<\/h1>/);
  const rest = `Host: ${ipv4Address()}\r\nContent-Length: 0\r\nConnection: close\r\n\r\n`;
  for (const request of ['PUT /style.css HTTP/1.1\r\n', `GET / HTTP/1.1\r\nLong: ${'x'.repeat(70000)}\r\n`]) {
    const answer = await answerTo(request + rest);
    const [, status] = answer.match(/^HTTP\/1\.[01] ([45]\d\d) /) ?? assert.fail(`${request.slice(0, 30)}: ${answer}`);
    assert.ok(answer.endsWith(fs.readFileSync(`${web}/errors/${status}.html`, 'utf8')), `${request.slice(0, 30)}: ${answer}`);
  }
});

test('A part of a file that is not there', {}, async (page) => {
  const answer = await fetch(`${base()}style.css`, {headers: {range: 'bytes=99999999-'}});
  assert.equal(answer.status, 416);
  assert.equal(await answer.text(), fs.readFileSync(`${web}/errors/416.html`, 'utf8'));
  await page.setExtraHTTPHeaders({range: 'bytes=99999999-'});
  await page.route('**/*', (route) => route.continue({headers: {...route.request().headers(),
    ...route.request().isNavigationRequest() ? {} : {range: ''}}}));
  await page.goto(`${base()}icon.svg`);
  await looksLikeThePages(page, 'There is no such part');
});

test('A form that is too long: refused by what it says of itself, and by what comes', {}, async (page) => {
  const head = `POST /signin.php HTTP/1.1\r\nHost: ${ipv4Address()}\r\nConnection: close\r\n`;
  const chunk = `4000\r\n${'x'.repeat(0x4000)}\r\n`;
  for (const rest of ['Content-Length: 70000\r\n\r\n', `Transfer-Encoding: chunked\r\n\r\n${chunk.repeat(5)}`]) {
    const answer = await answerTo(head + rest);
    assert.match(answer, /^HTTP\/1\.1 413 /);
    assert.ok(answer.endsWith(fs.readFileSync(`${web}/errors/413.html`, 'utf8')), answer);
  }
  // As a browser shows it that was led to send too much.
  await page.goto(`${base()}signin.php`);
  await page.evaluate(() => {
    const form = document.querySelector('form[action="signin.php"]');
    form.append(Object.assign(document.createElement('input'), {type: 'hidden', name: 'more', value: 'x'.repeat(70000)}));
    form.noValidate = true;
    HTMLFormElement.prototype.submit.call(form);
  });
  await page.waitForURL(/signin\.php/);
  await page.waitForFunction(() => document.title.startsWith('Error: '));
  await looksLikeThePages(page, 'This is too much at once');
});

test('While the interpreter is gone the pages say so, and afterwards they are back', {}, async (page) => {
  const [socket] = fs.readFileSync(`${web}/conf/lighttpd.conf`, 'utf8').match(/\/run\/\S+php\.sock/);
  fs.renameSync(socket, `${socket}.away`);
  try {
    const answer = await page.goto(`${base()}index.php`);
    assert.equal(answer.status(), 503);
    await looksLikeThePages(page, 'The pages do not answer');
  } finally {
    fs.renameSync(`${socket}.away`, socket);
  }
  await until(async () => (await fetch(`${base()}index.php`)).status === 200, 'the pages');
});

test('A page that dies says so, and shows nothing of what it had begun', {user: 'admin', expected: /no_such_function|#\d|thrown in/},
  async (page) => {
    const template = `${web}/templates/dns.php`;
    const dying = '/run/dying.template';
    fs.writeFileSync(dying, '<p>begun</p><?php no_such_function();', {mode: 0o644});
    fromLan('mount', '--bind', dying, template);
    try {
      const answered = page.waitForResponse((response) => response.url().endsWith('dns.php'));
      await open(page, 'dns.php');
      assert.equal((await answered).status(), 500);
      await looksLikeThePages(page, 'The page has failed');
      assert.doesNotMatch(await page.content(), /begun|no_such_function/);
    } finally {
      fromLan('umount', template);
    }
    await open(page, 'dns.php');
    assert.equal(await page.innerText('h1'), 'DNS');
  });
