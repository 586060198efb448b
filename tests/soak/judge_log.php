<?php
// Counts the entries of trace logs, how many calls of each function they tell of and how often each message is in them,
// and what is no whole entry: judge_log.php FILE... The answer is a line of JSON.

// An entry is one line, unless its message has line ends of its own: these.
const MESSAGES_WITH_LINE_ENDS = ["Mode\nSetting SSL to " => 'Mode Setting SSL to ', "\n\n:<>" => ':<>'];
// Two that are mixed have the beginning of the second somewhere behind that of the first.
const ENTRY = '/^TRACE\[\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\.\d{3} [+-]\d{4}\]:((?:(?!TRACE\[).)*?):<(?:(?!TRACE\[).)*>$/';

$judged = ['entries' => 0, 'broken' => 0, 'first_broken' => 'none', 'calls' => [], 'messages' => []];

function complain($what) {
  global $judged;
  if (++$judged['broken'] == 1) $judged['first_broken'] = substr($what, 0, 200);
}

function count_message($message) {
  global $judged;
  ++$judged['entries'];
  @++$judged['messages'][$message];
  if (preg_match('/^entering (get|set|is|create|delete|restart)(_\w+)$/i', $message, $name)) @++$judged['calls'][$name[1] . $name[2]];
}

function judge($text) {
  foreach (explode("\n", substr(strtr($text, MESSAGES_WITH_LINE_ENDS), 0, -1)) as $line) {
    if (preg_match(ENTRY, $line, $parts)) {
      count_message($parts[1]);
    } else {
      complain($line);
    }
  }
}

// Piece by piece, each up to where an entry begins: a log can be large.
function judge_file($name) {
  $file = fopen($name, 'r');
  for ($rest = ''; !feof($file); $rest = substr($rest, $end)) {
    $rest .= fread($file, 1 << 20);
    $end = (int)strrpos($rest, "\nTRACE[");
    if ($end > 0) judge(substr($rest, 0, ++$end));
  }
  if ($rest === '') return;
  if (substr($rest, -1) !== "\n") {
    complain("no end: $rest");
    $rest .= "\n";
  }
  judge($rest);
}

foreach (array_slice($argv, 1) as $name) judge_file($name);
// The workers are no functions that a page calls.
unset($judged['calls']['set_network_ipv4'], $judged['calls']['set_network_ipv6']);
echo json_encode($judged);
