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
  if (!field) continue; // who may only look has values in the place of fields
  const general = shown.textContent;
  const scheme = general.slice(0, general.indexOf('//') + 2);
  const update = () => { shown.textContent = isIpv4(field.value.trim()) ? `${scheme}${field.value.trim()}/` : general; };
  field.addEventListener('input', update);
  update();
}

// Parts of a form that another field makes useless. Without scripts they only look it, and what they say is passed over.
for (const part of document.querySelectorAll('[data-inactive-while], [data-inactive-unless]')) {
  const {inactiveWhile, inactiveUnless} = part.dataset;
  const field = document.getElementById(inactiveWhile || inactiveUnless);
  if (!field) continue;
  const update = () => { part.disabled = field.checked === Boolean(inactiveWhile); };
  field.addEventListener('change', update);
  addEventListener('pageshow', update); // the browser may have put back what was chosen
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
    for (const told of section.querySelectorAll('[data-when-answering]')) told.hidden = misses >= 3;
    for (const lost of section.querySelectorAll('[data-when-lost]')) showLost(lost, misses >= 3);
    if (await goWhereItIs(misses)) return undefined;
    if (!page) continue;
    // Another title is another state, and no part at all another page.
    if (heading(page) !== heading(document) || !parts.every((id) => page.getElementById(id))) return location.reload();
    parts.forEach((id) => replace(document.getElementById(id), page.getElementById(id)));
    countDown(page);
    if (!page.querySelector('[data-poll]')) return undefined;
  }
}

// While nothing answers, the page's last words about it are stale: it says so, and when the settings of before are back, which
// takes some seconds after the time is over.
function showLost(lost, isLost) {
  if (isLost) {
    const title = document.querySelector('h1');
    document.title = document.title.replace(title.textContent, lost.dataset.whenLost);
    title.textContent = lost.dataset.whenLost;
    const back = lost.querySelector('[data-back-at]');
    if (back) back.textContent = `at ${timeOfDay(Date.now() + countdownEnd - performance.now() + 15000)}`;
  }
  lost.hidden = !isLost;
}

function timeOfDay(milliseconds) {
  return new Date(milliseconds).toLocaleTimeString([], {hour: '2-digit', minute: '2-digit'});
}

// When the appliance is elsewhere, the page goes there; where the address in use stays, it only proves that the other one is
// reached. The random number tells the appliance from another web server at its address: none but the appliance gets the key.
// Returns whether it goes.
async function goWhereItIs(misses) {
  for (const {dataset: {origin, probe, answer, key, leaves, known}} of document.querySelectorAll('[data-origin]')) {
    if (leaves && misses === 0) return false;
    const isIt = await isThisAppliance(origin, probe, answer);
    if (leaves && (isIt || (known && misses > 4))) {
      location.assign(isIt && key ? `${origin}/trial.php#${key}` : `${origin}/applying.php`);
      return true;
    }
    if (isIt && key) {
      await fetch(`${origin}/trial.php?background=1`, {method: 'POST', mode: 'no-cors', credentials: 'omit',
        body: new URLSearchParams({key}), signal: AbortSignal.timeout(3000)}).catch(() => {});
      return false;
    }
  }
  return false;
}

async function isThisAppliance(origin, number, answer) {
  try {
    const said = await fetch(`${origin}/trial.php?probe=${number}`,
      {cache: 'no-store', credentials: 'omit', signal: AbortSignal.timeout(2000)});
    return said.ok && (await said.text()).trim().split(' ').includes(answer);
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

// A time of the appliance as this computer says it.
for (const told of document.querySelectorAll('[data-local-time]')) {
  told.textContent = `That was at ${timeOfDay(told.dataset.localTime * 1000)} on this computer.`;
  told.hidden = false;
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
    const isOver = performance.now() > countdownEnd;
    for (const part of returning.querySelectorAll('[data-until-over]')) part.hidden = isOver;
    for (const part of returning.querySelectorAll('[data-when-over]')) part.hidden = !isOver;
    try {
      const answer = await fetch(`${address}?background=1`, {redirect: 'manual', signal: AbortSignal.timeout(3000)});
      // It sends on to the new mode.
      const isThere = answer.type === 'opaqueredirect';
      for (const part of returning.querySelectorAll('[data-until-there]')) part.hidden = isThere;
      for (const part of returning.querySelectorAll('[data-when-there]')) part.hidden = !isThere;
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
  // A page may leave out what is not asked for.
  if (polled) address.searchParams.set('parts', polled.dataset.parts);
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
      if (location.protocol === 'https:') break; // HTTP has no way to be sent on from here
    }
  }
  // It may not listen everywhere yet.
  await pause();
  location.assign(link.href);
}

// Leaving a form with changes asks first, but for the form that is sent. The browser is told only then: it does not keep a page
// for going back that may ask.
let sent = null;
addEventListener('submit', (event) => { sent = event.target; });
addEventListener('input', updateAsking);
addEventListener('change', updateAsking);
addEventListener('pageshow', () => { sent = null; });
updateAsking();

function updateAsking() {
  if (unsavedForms().length > 0) addEventListener('beforeunload', askBeforeLeaving);
  else removeEventListener('beforeunload', askBeforeLeaving);
}

function askBeforeLeaving(event) {
  if (!unsavedForms().some((form) => form !== sent)) return;
  event.preventDefault();
  event.returnValue = true;
  // Who stays can send the form after all.
  const button = sent && sent.querySelector('button[type=submit][disabled]');
  sent = null;
  if (button) setTimeout(() => { button.disabled = false; }, 1000);
}

function unsavedForms() {
  return [...document.querySelectorAll('form[method=post]')].filter((form) => form.hasAttribute('data-unsaved')
    || form.querySelector('[aria-invalid=true]') || [...form.elements].some(isChanged));
}

function isChanged(field) {
  if (field.type === 'checkbox' || field.type === 'radio') return field.checked !== field.defaultChecked;
  if (field.options) {
    const chosen = [...field.options].findIndex((option) => option.defaultSelected);
    return field.selectedIndex !== Math.max(0, chosen);
  }
  return ['text', 'password', 'file'].includes(field.type) && field.value !== field.defaultValue;
}

// Who is about to be signed out is told in time. The focus stays where it is: the place is read out when something is put there.
const session = document.getElementById('session');
if (session) watchSession(session);

async function watchSession(place) {
  const warning = Number(document.body.dataset.sessionWarning);
  let left = secondsOf(document.body.dataset.session);
  let end = Date.now() + left.idle * 1000;
  for (;;) {
    const seconds = (end - Date.now()) / 1000;
    // While it warns it looks often: another page of the same session may go on.
    await new Promise((resolve) => setTimeout(resolve, 1000 * (seconds > warning ? Math.min(seconds - warning, 3600) : 5)));
    if ((end - Date.now()) / 1000 > warning) continue;
    const now = await askForSession('&background=1');
    if (now) {
      left = now;
      end = Date.now() + left.idle * 1000;
    }
    const rest = (end - Date.now()) / 1000;
    if (rest <= 0) return say(place, 'over', overText());
    if (rest > warning) say(place, '');
    else warn(place, rest, left.idle >= left.atMost, (stays) => { end = Date.now() + stays.idle * 1000; });
  }
}

// Seconds until the session ends when nothing is done, and until it ends in any case; zeros when it has ended, and null when
// nobody answers.
async function askForSession(more) {
  try {
    const answer = await fetch(`account.php?seconds=1${more}`, {cache: 'no-store', signal: AbortSignal.timeout(3000)});
    const text = await answer.text();
    return secondsOf(/^\d+ \d+$/.test(text) ? text : '0 0');
  } catch {
    return null;
  }
}

function secondsOf(text) {
  const [idle, atMost] = text.split(' ').map(Number);
  return {idle, atMost};
}

function warn(place, seconds, inAnyCase, stay) {
  const time = seconds > 60 ? 'in 2 minutes' : 'in less than a minute';
  if (inAnyCase) {
    say(place, time, `You will be signed out ${time}: a session does not last longer. Save what you have typed.`);
    return;
  }
  if (place.dataset.said === time) return;
  say(place, time, `You will be signed out ${time}, because nothing was done here.`);
  const button = document.createElement('button');
  button.type = 'button';
  button.textContent = 'Stay signed in';
  button.addEventListener('click', async () => {
    const stays = await askForSession('');
    if (!stays) return;
    if (stays.idle > 0) {
      stay(stays);
      say(place, 'stays', 'You stay signed in.');
      setTimeout(() => { if (place.dataset.said === 'stays') say(place, ''); }, 5000);
    } else {
      say(place, 'over', overText());
    }
  });
  place.firstChild.append(button);
}

// What is said of what was typed: a form with a proof goes through the sign-in, but for passwords and communities.
function overText() {
  const unsaved = unsavedForms();
  const comesBack = unsaved.every((form) => form.elements.proof
    && ![...form.elements].some((field) => /password|passphrase|community/i.test(field.name) && isChanged(field)));
  const rest = comesBack ? 'What you have typed is not lost: press the button of the form, sign in, and it is there again.'
    : 'Not all that you have typed comes back after the sign-in: copy what you still need.';
  return `You have been signed out. ${unsaved.length > 0 ? rest : 'The next click asks for the password.'}`;
}

// `what` is there so that nothing is read out twice.
function say(place, what, text = '') {
  if (place.dataset.said === what) return;
  place.dataset.said = what;
  const focused = place.contains(document.activeElement);
  place.replaceChildren();
  if (text === '') return;
  const box = document.createElement('div');
  box.className = 'message caution';
  const words = document.createElement('p');
  words.textContent = text;
  box.append(words);
  place.append(box);
  if (focused) document.getElementById('content').focus();
}

// How strong a new password is, in words, as it is typed.
for (const field of document.querySelectorAll('[data-strengths]')) {
  const strengths = field.dataset.strengths.split(', ').map((pair) => pair.split(' '));
  const place = document.createElement('p');
  place.className = 'hint';
  place.setAttribute('role', 'status');
  field.after(place);
  let typed;
  field.addEventListener('input', () => {
    clearTimeout(typed);
    typed = setTimeout(() => {
      const length = [...field.value].length;
      const reached = strengths.filter(([characters]) => length >= characters);
      const missing = strengths[0][0] - length;
      place.textContent = length === 0 ? '' : reached.length > 0 ? `Strength by its length: ${reached.at(-1)[1].toLowerCase()}.`
        : `Too short: ${missing} more ${missing === 1 ? 'character' : 'characters'}.`;
    }, 400);
  });
}
