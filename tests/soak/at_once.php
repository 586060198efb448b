<?php
// Processes that read and change at the same time: at_once.php PROCESSES SECONDS.
include __DIR__ . '/common.php';

[, $processes, $seconds] = $argv;
$folder = '/tmp/soak';
mkdir($folder);
$session = new Session();

$workers = [];
for ($i = 0; $i < $processes; ++$i) {
  $workers[] = proc_open(['php', __DIR__ . '/at_once_worker.php', (string)$i, $seconds, "$folder/$i"],
                         [['file', '/dev/null', 'r'], ['file', "$folder/$i.said", 'w'], ['file', '/dev/null', 'w']], $pipes);
}
$ended_badly = 0;
foreach ($workers as $worker) {
  if (proc_close($worker) != 0) ++$ended_badly;
}

$sums = ['wrong' => 0, 'warnings' => 0, 'descriptors_more' => 0, 'children' => 0];
$firsts = ['first_wrong' => 'none', 'first_warning' => 'none'];
$calls = $written = $receivers = [];
$reports = 0;
for ($i = 0; $i < $processes; ++$i) {
  $told = json_decode(@file_get_contents("$folder/$i") ?: 'null', true);
  if ($told === null) continue;
  ++$reports;
  foreach ($sums as $name => $_) $sums[$name] += $told[$name];
  foreach ($firsts as $name => $first) if ($first == 'none') $firsts[$name] = $told[$name];
  foreach ($told['calls'] as $name => $count) $calls[$name] = ($calls[$name] ?? 0) + $count;
  $written = array_merge_recursive($written, $told['written']);
  $receivers = array_merge($receivers, $told['receivers']);
}
found('ended_badly', $ended_badly);
found('reports', $reports);
foreach ($sums + $firsts as $name => $value) found($name, $value);

$judged = judge_log();
found_log($judged);
ksort($calls);
ksort($judged['calls']);
found('calls', array_sum($calls));
found('changes', array_sum(array_map('count', $written)));
found('calls_of_processes', json_encode($calls));
found('calls_in_log', json_encode($judged['calls']));

// What is so now, was written by one of them, and is in force.
function is_written($setting, $value, $initial) {
  global $written;
  found($setting, in_array($value, $written[$setting] ?? [$initial], true) ? 'one of the written' : json_encode($value));
}
$host_name = get_network_hostname();
is_written('host_name', $host_name, 'library');
found('host_name_in_force', gethostname() == $host_name ? 'yes' : gethostname());
$servers = get_network_dns($session);
is_written('servers', "$servers->dnsPrimary $servers->dnsSecondary", ' ');
preg_match_all('/^nameserver (\S+)$/m', file_get_contents('/etc/resolv.conf'), $in_force);
found('servers_in_force', implode(' ', $in_force[1]) == "$servers->dnsPrimary $servers->dnsSecondary" ? 'yes' : implode(' ', $in_force[1]));
$stateless = is_stateless_enabled();
is_written('stateless', $stateless, true);
$stored = @file_get_contents('/home/embedded/library/AppManager/dat/stateless');
$expected = isset($written['stateless']) ? (int)$stateless . "\n" : false;
found('stateless_stored', $stored === $expected ? 'yes' : json_encode($stored));
is_written('port', json_encode(get_eth2_port_settings($session)), null);
is_written('community', get_snmp_settings($session)->community_name, 'public');
$now = array_column(get_snmp_trap_regs($session), 'ip');
sort($now);
sort($receivers);
found('receivers', $now == $receivers ? 'those that were left' : json_encode([$now, $receivers]));
