// The pages' source, before anything is asked of them.
'use strict';

const assert = require('node:assert/strict');
const {spawnSync} = require('node:child_process');
const fs = require('node:fs');
const path = require('node:path');
const {test} = require('node:test');
const {applianceFolder, fromLan, web} = require('./appliance.cjs');
const {base, messages, open, press, test: pageTest} = require('./browser.cjs');

const checkout = path.resolve(__dirname, '../..');
const pages = `${checkout}/http/pages`;

function subset(folder) {
  return spawnSync('php', [`${__dirname}/subset.php`, folder, `${checkout}/http/src/network.stub.php`], {encoding: 'utf8'});
}

test('The pages use only what both interpreters have, and every function of the module', () => {
  const {status, stdout} = subset(pages);
  assert.equal(stdout, '');
  assert.equal(status, 0);
});

test('Today\'s interpreter has nothing against the pages', () => {
  const files = fs.readdirSync(pages, {recursive: true}).filter((name) => name.endsWith('.php')).map((name) => `${pages}/${name}`);
  for (const file of files) assert.equal(spawnSync('php', ['-l', file], {encoding: 'utf8'}).status, 0, file);
});

test('What only one of the interpreters has is found', () => {
  const folder = fs.mkdtempSync('/tmp/subset-');
  fs.mkdirSync(`${folder}/htdocs`);
  const wrong = {'[1]': 'a short array', '$a ?? 2': '"??"', 'f()[0]': 'an index of', 'function () {}': 'a closure',
    '$a ?: 1': '"?:"', 'file_put_contents($a, 1)': 'file_put_contents()', 'password_hash($a, 1)': 'without function_exists()',
    'f()->x': 'a property of', 'A::b()': '"::"', 'clone $a': '"clone"', 'each($a)': 'each()',
    '1; function g(array $a) {}': 'a parameter with a type', '1; function g($a = array(1), $b): int {}': 'a type of what',
    '1; class C { var int $a; }': 'a property with a type', '\\strlen($a)': '"\\strlen"', '$a **= 2': '"**="', 'f(1,)': 'a comma before',
    'empty(f())': 'of what a function returns', 'f(x: 1)': 'an argument by its name', '1_000': 'the number 1_000',
    '0b11': 'the number 0b11', "<<<'X'\na\nX": 'a nowdoc text', '1; list("k" => $a) = $b': 'keys in list()',
    '1; class C { function __construct() {} }': '__construct(), which', '$b{0}': 'an index in braces', '1; use A': '"use"',
    'array(1,)': ''};
  for (const code of Object.keys(wrong)) {
    fs.writeFileSync(`${folder}/htdocs/page.php`, `<?php function f() { return 1; } $a = ${code};`);
    const found = subset(folder).stdout;
    if (wrong[code]) assert.ok(found.split('\n').some((line) => line.includes('page.php:1: ') && line.includes(wrong[code])), `${code}: ${found}`);
    else assert.ok(!found.includes('page.php'), `${code}: ${found}`);
  }
  fs.rmSync(folder, {recursive: true});
});

test('Nothing is fetched from another host, and no script or style stands in a page', () => {
  const own = fs.readdirSync(pages, {recursive: true}).map((name) => path.join(pages, name))
    .filter((name) => fs.statSync(name).isFile());
  assert.ok(own.length > 20, `${own.length} files`);
  for (const file of own) {
    const text = fs.readFileSync(file, 'utf8');
    assert.doesNotMatch(text, /(src|href|action)="(https?:)?\/\//, file);
    assert.doesNotMatch(text, /@import|url\(/, file);
    assert.doesNotMatch(text, /<style|\sstyle="|<script(?! src=)|\son[a-z]+="/, file);
  }
});

pageTest('The page of the guide works as it stands there, and its change is in the audit', {user: 'admin'}, async (page) => {
  const guide = fs.readFileSync(`${checkout}/doc/writing-a-page.md`, 'utf8');
  const [code, template] = [...guide.matchAll(/^```php\n([^]*?)^```$/gm)].map(([, text]) => text);
  assert.match(code, /name\.php/);
  // In the place of a page that is there.
  for (const [file, text] of [['htdocs/port.php', code.replaceAll('name.php', 'port.php').replace("show('name'", "show('port'")],
    ['templates/port.php', template.replaceAll('name.php', 'port.php')]]) {
    const copy = `/run/${file.replace('/', '-')}`;
    fs.writeFileSync(copy, text, {mode: 0o644});
    fromLan('mount', '--bind', copy, `${web}/${file}`);
  }
  try {
    await open(page, 'port.php');
    const name = await page.inputValue('#hostname');
    for (const [old, next] of [[name, 'guided'], ['guided', name]]) {
      await page.fill('#hostname', next);
      await press(page, 'Save');
      assert.equal(await messages(page), `The host name is now ${next}.`);
      const last = fs.readFileSync(`${applianceFolder}/HTTPService/dat/audit`, 'utf8').trim().split('\n').at(-1).split('\t');
      assert.deepEqual([last[1], last[3], last[6], last[7], last[8]],
        ['admin', 'Set the host name.', `Name\x1f${old}`, `Name\x1f${next}`, 'done']);
    }
  } finally {
    for (const file of ['htdocs/port.php', 'templates/port.php']) fromLan('umount', `${web}/${file}`);
  }
});

test('What pages share cannot be asked for', async () => {
  for (const folder of ['shared', 'templates']) {
    for (const name of fs.readdirSync(`${pages}/${folder}`)) {
      for (const address of [`${folder}/${name}`, `%2e%2e/${folder}/${name}`, `..%2f${folder}/${name}`]) {
        const answer = await fetch(`${base()}${address}`);
        assert.ok(answer.status === 404 || answer.status === 400, `${address}: ${answer.status}`);
      }
    }
  }
});
