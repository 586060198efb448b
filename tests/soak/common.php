<?php
// What the pages of the soak tests share. They run inside of an appliance and print what they found, a line each:
// "NAME VALUE". The tests say what the values have to be.

const LOG = '/home/embedded/library/HTTPService/lighttpd/logs/php_extension.log';
const LOG_HELD = '/home/embedded/library/HTTPService/lighttpd/logs/held';

class Session { var $user = 'admin'; }

function found($name, $value) {
  echo $name, ' ', $value, "\n";
}

// What the module leaves behind in the process that calls it.
function descriptors() {
  return count(scandir('/proc/self/fd'));
}

function threads() {
  return count(glob('/proc/self/task/*'));
}

function children() {
  return count(preg_split('/ /', file_get_contents('/proc/self/task/' . getmypid() . '/children'), -1, PREG_SPLIT_NO_EMPTY));
}

function resident_kib() {
  preg_match('/^VmRSS:\s+(\d+) kB/m', file_get_contents('/proc/self/status'), $parts);
  return (int)$parts[1];
}

// Warnings are what the module reports a failure with. They are counted, and the first is shown.
$warnings = 0;
$first_warning = 'none';
set_error_handler(function ($level, $message) {
  global $warnings, $first_warning;
  if ((error_reporting() & $level) == 0) return;  // what a test expects
  if (++$warnings == 1) $first_warning = $message;
});

function found_warnings() {
  global $warnings, $first_warning;
  found('warnings', $warnings);
  found('first_warning', $first_warning);
}

// What logs say, by a process of its own: this one's memory may be what is measured. See judge_log.php.
function judge_files($files) {
  return json_decode(shell_exec('exec php -n ' . __DIR__ . '/judge_log.php ' . implode(' ', $files)), true);
}

// When the log has grown, the device begins it anew and keeps the last few. While it does, one file has two names.
function judge_log() {
  clearstatcache();
  link(LOG, LOG_HELD);
  $files = [fileinode(LOG_HELD) => LOG_HELD];
  foreach (glob(LOG . '.*') as $file) $files += [fileinode($file) => $file];
  $judged = judge_files($files);
  unlink(LOG_HELD);
  return $judged;
}

function found_log($judged) {
  foreach (['entries', 'broken', 'first_broken'] as $name) found("log_$name", $judged[$name]);
}
