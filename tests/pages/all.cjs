// All tests, one after the other: they share one appliance. Each leaves the settings as it found them.
'use strict';

require('./source.cjs');
require('./signing_in.cjs');
require('./reading.cjs');
require('./diagnostics.cjs');
require('./audit.cjs');
require('./changing.cjs');
require('./addresses.cjs');
require('./web_security.cjs');
require('./trial.cjs');
require('./looks.cjs');
require('./safety.cjs'); // ends with what the web server has written down meanwhile
