<?php
// Calls a function for a test as it is called for ./run --check.
require __DIR__ . '/../../../appliance/launcher/check/pages/call.php';
