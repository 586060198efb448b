<?php
// One process that reads and reads: reads.php CALLS CALLS_WITH_COMMANDS. Nobody changes the settings meanwhile, so the
// answers do not change either.
include __DIR__ . '/common.php';

$calls = (int)$argv[1];
$calls_with_commands = (int)$argv[2];
const CALLS_BETWEEN_LOOKS = 50000;
const FIRST_CALLS = 5000;
const FIRST_CALLS_WITH_COMMANDS = 27;

$session = new Session();
$without_command = [
  fn() => is_ipv6_enabled(),
  fn() => is_ipv6_dhcp_enabled(),
  fn() => get_ssl_settings($session),
  fn() => get_snmp_settings($session),
  fn() => get_snmp_trap_regs($session),
];
$with_command = [
  fn() => get_network_hostname(),
  fn() => get_network_dns($session),
  fn() => get_network_configuration_ipv4($session),
  fn() => get_network_configuration_ipv6($session),
  fn() => is_ipv6_static_enabled(),
  fn() => is_stateless_enabled(),
  fn() => get_all_ipv6_addresses(),
  fn() => get_eth2_port_settings($session),
  fn() => get_fw_settings($session),
];

// Something to be read everywhere.
create_snmp_trap_reg($session, 1, '10.20.0.9', '162');
create_snmp_trap_reg($session, 2, '2001:db8:20::9', '10162');
set_network_dns($session, (object)['dnsPrimary' => '10.20.0.1', 'dnsSecondary' => '2001:db8:20::1']);
set_network_configuration_ipv6($session, (object)['staticEnabled' => '1', 'ipStatic' => '2001:db8:20::42',
                                                  'gateway' => '2001:db8:20::1', 'prefix' => '64']);
for ($tries = 0; threads() > 1 && $tries < 600; ++$tries) usleep(100000);

// The device keeps few of the logs that have grown: what it has put aside is judged and taken away in between.
$totals = ['entries' => 0, 'broken' => 0, 'first_broken' => 'none', 'calls' => 0];
function add_to(&$totals, $judged) {
  if ($totals['broken'] == 0) $totals['first_broken'] = $judged['first_broken'];
  foreach (['entries', 'broken'] as $name) $totals[$name] += $judged[$name];
  $totals['calls'] += array_sum($judged['calls']);
}

function take_logs_put_aside() {
  global $totals;
  foreach (glob(LOG . '.[1-9]') as $file) {
    clearstatcache();
    if (@fileinode($file) == fileinode(LOG)) continue;  // will be no more the next time
    if (!@rename($file, LOG_HELD)) continue;                // has another number now
    add_to($totals, judge_files([LOG_HELD]));
    unlink(LOG_HELD);
  }
}

function log_so_far() {
  global $totals;
  $now = $totals;
  add_to($now, judge_log());
  return $now;
}

function text_of_answers($functions) {
  return array_map(fn($function) => json_encode($function()), $functions);
}

function call_often($functions, $count, $answers) {
  $wrong = 0;
  for ($i = 0; $i < $count; ++$i) {
    $which = $i % count($functions);
    if (json_encode($functions[$which]()) !== $answers[$which]) ++$wrong;
  }
  return $wrong;
}

$answers = text_of_answers($without_command);
$answers_of_commands = text_of_answers($with_command);
foreach (array_merge($answers, $answers_of_commands) as $answer) found('answer', $answer);

// What is made once and kept is there behind these.
$wrong = call_often($without_command, FIRST_CALLS, $answers);
$wrong += call_often($with_command, FIRST_CALLS_WITH_COMMANDS, $answers_of_commands);
$calls_before = log_so_far()['calls'];
$resident = resident_kib();
$descriptors = descriptors();
$begin = microtime(true);

for ($rest = $calls; $rest > 0; $rest -= CALLS_BETWEEN_LOOKS) {
  $wrong += call_often($without_command, min($rest, CALLS_BETWEEN_LOOKS), $answers);
  take_logs_put_aside();
}
$wrong += call_often($with_command, $calls_with_commands, $answers_of_commands);

found('seconds', round(microtime(true) - $begin));
found('resident_before', $resident);
found('resident_more', resident_kib() - $resident);
found('descriptors_more', descriptors() - $descriptors);
found('threads', threads());
found('children', children());
found('wrong_answers', $wrong);
found_warnings();
$log = log_so_far();
found('calls_in_log', $log['calls'] - $calls_before);
found_log($log);
