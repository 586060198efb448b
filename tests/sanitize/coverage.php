<?php
// Shows what is covered of each file in a folder, and what is not: coverage.php BRANCHES LINES FOLDER NOT_COVERED.
// BRANCHES and LINES are what llvm-cov exports as JSON and for lcov.
//
// A line of NOT_COVERED that does not begin with "#" or a blank is
//
//   FILE: WHAT: TEXT
//
// WHAT is "line", "never true" or "never false", TEXT is what stands in the line of the source from its first to its
// last letter; so it goes on to mean the same place when lines are added. "FILE: not built" is a source that is no part
// of this build. Each has to be a place that is really not covered.
ini_set('memory_limit', '-1');
[, $branches, $lines, $folder, $not_covered] = $argv;

$named = [];
foreach (file($not_covered, FILE_IGNORE_NEW_LINES) as $line) {
  if (preg_match('/^[^# ]/', $line)) $named[$line] = false;
}

// How often each line was run, file by file.
function read_lines($lines) {
  $counts = [];
  foreach (file($lines) as $line) {
    if (preg_match('/^SF:(.*)/', $line, $parts)) $file = $parts[1];
    if (preg_match('/^DA:(\d+),(\d+)/', $line, $parts)) $counts[$file][$parts[1]] = $parts[2];
  }
  return $counts;
}

// Of a template each instance has branches of its own; the source has them once.
function branches_of($branches) {
  $merged = [];
  foreach ($branches as [$line, $column, , , $true, $false]) {
    $key = "$line:$column";
    $merged[$key] = [$line, ($merged[$key][1] ?? 0) + $true, ($merged[$key][2] ?? 0) + $false];
  }
  return $merged;
}

$failed = 0;
// Whether the entry is named; if not, that is said, with the place.
function is_named($entry, $place) {
  global $named, $failed;
  if (isset($named[$entry])) {
    $named[$entry] = true;
    return true;
  }
  echo "not covered: $place\n";
  ++$failed;
  return false;
}

function not_covered($name, $source, $line, $what) {
  $text = trim($source[$line - 1]);
  return is_named("$name: $what: $text", "$name:$line: $what: $text");
}

$rows = [];
$sum = array_fill(0, 6, 0);
$counts = read_lines($lines);
foreach (json_decode(file_get_contents($branches), true)['data'][0]['files'] as $file) {
  if (dirname($file['filename']) != $folder) continue;
  $name = basename($file['filename']);
  $source = file($file['filename'], FILE_IGNORE_NEW_LINES);
  $row = array_fill(0, 6, 0);
  foreach ($counts[$file['filename']] as $line => $count) {
    if (trim($source[$line - 1]) == '}') continue;  // no statement
    ++$row[0];
    if ($count > 0) ++$row[1];
    elseif (not_covered($name, $source, $line, 'line')) ++$row[2];
  }
  foreach (branches_of($file['branches']) as [$line, $true, $false]) {
    foreach (['never true' => $true, 'never false' => $false] as $what => $count) {
      ++$row[3];
      if ($count > 0) ++$row[4];
      elseif (not_covered($name, $source, $line, $what)) ++$row[5];
    }
  }
  $rows[$name] = $row;
  foreach ($row as $i => $number) $sum[$i] += $number;
}
foreach (glob("$folder/*.cc") as $file) {
  $name = basename($file);
  if (!isset($rows[$name])) is_named("$name: not built", "$name: not built");
}
ksort($rows);
printf("%-24s %6s %8s %6s %9s %8s %6s\n", 'file', 'lines', 'covered', 'named', 'branches', 'covered', 'named');
foreach ($rows + ['all' => $sum] as $name => $row) printf("%-24s %6d %8d %6d %9d %8d %6d\n", $name, ...$row);
foreach (array_keys($named, false, true) as $entry) {
  echo "named as not covered, but is covered or not there: $entry\n";
  ++$failed;
}
exit($failed == 0 && $sum[0] > 0 ? 0 : 1);
