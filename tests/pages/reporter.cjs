// One line for each test, what was wrong with those that failed, and the end.
'use strict';

module.exports = async function* report(events) {
  for await (const {type, data} of events) {
    // The file itself counts as a test in some versions.
    if (data.name && data.name.endsWith('.cjs') && type === 'test:pass') continue;
    if (type === 'test:pass') {
      yield `ok ${data.name} (${Math.round(data.details.duration_ms)} ms)\n`;
    } else if (type === 'test:fail') {
      const error = data.details.error.cause || data.details.error;
      yield `not ok ${data.name}\n${String(error.stack || error).replace(/^/gm, '  ')}\n`;
    }
  }
  yield 'end\n';
};
