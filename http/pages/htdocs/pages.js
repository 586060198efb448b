// What makes the pages more pleasant. Everything works without it.
'use strict';

document.documentElement.classList.add('scripts');

// Where something is to be corrected or read first.
const wrong = document.querySelector('input[aria-invalid=true], [aria-invalid=true] input')
  || document.querySelector('[data-focus]');
if (wrong) wrong.focus();

// The address under which the appliance will be found, as it is typed.
for (const shown of document.querySelectorAll('[data-address-from]')) {
  const field = document.getElementById(shown.dataset.addressFrom);
  const general = shown.textContent;
  const scheme = general.slice(0, general.indexOf('//') + 2);
  const update = () => { shown.textContent = isIpv4(field.value.trim()) ? `${scheme}${field.value.trim()}/` : general; };
  field.addEventListener('input', update);
  update();
}

function isIpv4(text) {
  const numbers = text.split('.');
  return numbers.length === 4 && numbers.every((number) => /^\d{1,3}$/.test(number) && number < 256);
}

// A change is sent once. The page may come back from the browser's memory, with the button as it was.
addEventListener('submit', (event) => {
  const button = event.submitter;
  if (event.target.method !== 'post' || !button || 'stays' in event.target.dataset) return;
  const label = button.innerHTML;
  setTimeout(() => {
    button.disabled = true;
    if (button.dataset.busy) button.textContent = button.dataset.busy;
  });
  addEventListener('pageshow', (show) => {
    if (!show.persisted) return;
    button.disabled = false;
    button.innerHTML = label;
  }, {once: true});
});

// Parts that are fetched again every so often, until the server no longer asks for it.
const polled = document.querySelector('[data-poll]');
if (polled) follow(polled);

async function follow(section) {
  const parts = section.dataset.parts.split(' ');
  let misses = 0;
  showEnd();
  for (;;) {
    await new Promise((resolve) => setTimeout(resolve, section.dataset.poll));
    // A change on trial is followed in the background, too.
    if (document.hidden && !document.getElementById('way')) {
      await new Promise((resolve) => addEventListener('visibilitychange', resolve, {once: true}));
    }
    const asked = location.href;
    const page = await fetchPage();
    if (location.href !== asked) continue; // the filter has changed meanwhile
    misses = page ? 0 : misses + 1;
    for (const lost of section.querySelectorAll('[data-when-lost]')) lost.hidden = misses < 3;
    for (const told of section.querySelectorAll('[data-when-answering]')) told.hidden = misses >= 3;
    if (await goWhereItIs(misses)) return undefined;
    if (!page) continue;
    // Another title is another state, and no part at all another page.
    if (heading(page) !== heading(document) || !parts.every((id) => page.getElementById(id))) return location.reload();
    parts.forEach((id) => replace(document.getElementById(id), page.getElementById(id)));
    countDown(page);
    if (!page.querySelector('[data-poll]')) return undefined;
  }
}

// When the appliance is elsewhere, the page goes there; where the address in use stays, it only proves that the other one is
// reached. The random number tells the appliance from another web server at its address. Returns whether it goes.
async function goWhereItIs(misses) {
  const way = document.querySelector('[data-origins]');
  if (!way || (way.dataset.leaves && misses === 0)) return false;
  for (const origin of way.dataset.origins.split(' ')) {
    const isIt = await isThisAppliance(origin, way.dataset.probe, way.dataset.answer);
    if (way.dataset.leaves && (isIt || (way.dataset.known && misses > 4))) {
      location.assign(way.dataset.key ? `${origin}/trial.php#${way.dataset.key}` : `${origin}/applying.php`);
      return true;
    }
    if (isIt && way.dataset.key) {
      await fetch(`${origin}/trial.php?background=1`, {method: 'POST', mode: 'no-cors', credentials: 'omit',
        body: new URLSearchParams({key: way.dataset.key}), signal: AbortSignal.timeout(3000)}).catch(() => {});
      return false;
    }
  }
  return false;
}

async function isThisAppliance(origin, number, answer) {
  try {
    const said = await fetch(`${origin}/trial.php?probe=${number}`,
      {cache: 'no-store', credentials: 'omit', signal: AbortSignal.timeout(2000)});
    return said.ok && (await said.text()).trim() === answer;
  } catch {
    return false;
  }
}

// The time that is left, counted here between the server's answers.
let countdownEnd = 0;
const countdown = document.querySelector('[data-countdown]');
if (countdown) {
  countDown(document);
  setInterval(() => {
    const left = Math.max(0, Math.ceil((countdownEnd - performance.now()) / 1000));
    countdown.textContent = left;
    const bar = countdown.closest('section').querySelector('progress[value]');
    if (bar) bar.value = left;
  }, 500);
}

function countDown(page) {
  const told = page.querySelector('[data-countdown]');
  if (told) countdownEnd = performance.now() + told.dataset.countdown * 1000;
}

// The key comes in the address's last part, which is sent to no server; it is good for one use.
const keyForm = document.querySelector('[data-key-form]');
if (keyForm && /^#[0-9a-f]{32}$/.test(location.hash)) {
  keyForm.key.value = location.hash.slice(1);
  history.replaceState(null, '', location.pathname);
  keyForm.hidden = false;
  keyForm.submit();
}

// A mode that nobody has reached is taken back: then this address answers again.
const returning = document.querySelector('[data-return]');
if (returning) waitForReturn(returning.dataset.return);

async function waitForReturn(address) {
  for (;;) {
    await new Promise((resolve) => setTimeout(resolve, 2000));
    try {
      const answer = await fetch(`${address}?background=1`, {redirect: 'manual', signal: AbortSignal.timeout(3000)});
      const page = answer.ok ? new DOMParser().parseFromString(await answer.text(), 'text/html') : null;
      if (page && page.querySelector('[data-over]')) return location.assign(address);
    } catch {
      // Not yet.
    }
  }
}

function heading(page) {
  return page.querySelector('h1').textContent;
}

async function fetchPage() {
  const address = new URL(location);
  address.searchParams.set('background', '1');
  try {
    const answer = await fetch(address, {signal: AbortSignal.timeout(3000)});
    const page = answer.ok ? new DOMParser().parseFromString(await answer.text(), 'text/html') : null;
    return page && page.querySelector('h1') ? page : null;
  } catch {
    return null;
  }
}

// Only what has changed is replaced, so that a screen reader says it once and a selection stays.
function replace(old, fresh) {
  if (old.innerHTML === fresh.innerHTML) return;
  const log = old.querySelector('.log.long, .calls');
  const focused = log && document.activeElement === log;
  const unfolded = [...old.querySelectorAll('details[data-call][open]')].map((call) => call.dataset.call);
  const chosen = document.activeElement.closest('[data-call]');
  const atEnd = !log || log.scrollTop + log.clientHeight >= log.scrollHeight - 8;
  const place = log ? log.scrollTop : 0;
  old.innerHTML = fresh.innerHTML;
  for (const call of old.querySelectorAll('[data-call]')) {
    call.open = unfolded.includes(call.dataset.call);
    if (chosen && chosen.dataset.call === call.dataset.call) call.querySelector('summary').focus();
  }
  const now = old.querySelector('.log.long, .calls');
  if (!now) return;
  if (focused) now.focus();
  // The calls have the newest first.
  now.scrollTop = atEnd && now.matches('.log') ? now.scrollHeight : place;
}

function showEnd() {
  for (const log of document.querySelectorAll('.log.long')) log.scrollTop = log.scrollHeight;
}

// The log is filtered as the text is typed.
const filter = document.getElementById('filter');
if (filter) {
  let typed;
  showEnd();
  filter.form.addEventListener('submit', (event) => {
    event.preventDefault();
    apply();
  });
  filter.form.errors.addEventListener('change', () => apply());
  filter.addEventListener('input', () => {
    clearTimeout(typed);
    typed = setTimeout(apply, 250);
  });
  const apply = async () => {
    const address = new URL(location);
    address.searchParams.set('filter', filter.value);
    if (filter.form.errors.checked) address.searchParams.set('errors', '1');
    else address.searchParams.delete('errors');
    history.replaceState(null, '', address);
    for (const link of filter.form.querySelectorAll('a.button')) link.search = withFilter(link.search);
    const asked = location.href;
    const page = await fetchPage();
    if (!page || location.href !== asked) return undefined;
    const log = page.getElementById('log');
    if (!log) return location.reload(); // signed out
    replace(document.getElementById('log'), log);
    showEnd();
  };
}

function withFilter(search) {
  const query = new URLSearchParams(search);
  query.set('filter', filter.value);
  if (filter.form.errors.checked) query.set('errors', '1');
  else query.delete('errors');
  return `?${query}`;
}

// A link to where the page goes on when the web server has restarted: it then answers by sending elsewhere, or no longer
// here at all.
for (const link of document.querySelectorAll('[data-go-after-restart]')) goAfterRestart(link);

async function goAfterRestart(link) {
  const pause = () => new Promise((resolve) => setTimeout(resolve, 1000));
  for (;;) {
    await pause();
    try {
      const {type} = await fetch('icon.svg', {cache: 'no-store', redirect: 'manual', signal: AbortSignal.timeout(3000)});
      if (type === 'opaqueredirect') break;
    } catch {
      if (link.protocol !== location.protocol) break;
    }
  }
  // It may not listen everywhere yet.
  await pause();
  location.assign(link.href);
}
