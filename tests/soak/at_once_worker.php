<?php
// One of the processes of at_once.php: at_once_worker.php NUMBER SECONDS RESULT. Reads and changes until its time is
// over, and writes into the file RESULT what it has called, what it has written and what was no right answer.
//
// Every value says who wrote it, so that one that nobody wrote, and one that is put together of two, are told.
include __DIR__ . '/common.php';

[, $number, $seconds, $result] = $argv;
mt_srand($number);
$session = new Session();
$told = ['calls' => [], 'written' => [], 'wrong' => 0, 'first_wrong' => 'none', 'receivers' => []];

function called($name) {
  global $told;
  $told['calls'][$name] = ($told['calls'][$name] ?? 0) + 1;
}

function right($name, $answer, $is_right) {
  global $told;
  called($name);
  if (!$is_right && ++$told['wrong'] == 1) $told['first_wrong'] = "$name answers " . json_encode($answer);
}

// What was written, unless the module has said that it was not.
function change($setting, $value, $name, ...$arguments) {
  global $told, $warnings, $session;
  called($name);
  $before = $warnings;
  $name($session, ...$arguments);
  if ($warnings == $before) $told['written'][$setting][] = $value;
}

function is_host_name($text) {
  return preg_match('/^(library|soak-\d+-\d+)$/', $text) == 1;
}

function are_servers($answer) {
  return json_encode($answer) == '{"dnsPrimary":"","dnsSecondary":""}' ||
         preg_match('/^10\.9\.(\d+\.\d+) 10\.8\.\1$/', "$answer->dnsPrimary $answer->dnsSecondary") == 1;
}

const PORTS = ['{"AutoNegotiate":1,"Speed":100,"Duplex":1}', '{"AutoNegotiate":0,"Speed":10,"Duplex":0}', '{"AutoNegotiate":0,"Speed":100,"Duplex":1}'];

function are_receivers($answer) {
  $one = '\{"transport":1,"ip":"10\.7\.\d+\.\d+","port":162,"id":"[0-9a-f]{8}-[0-9a-f]{8}-[0-9a-f]{8}"\}';
  return preg_match("/^\[($one(,$one)*)?\]$/", json_encode($answer)) == 1 &&
         count(array_unique(array_column($answer, 'id'))) == count($answer);
}

function are_agent_settings($answer) {
  return preg_match('/^\{("\w+":(true|false),){5}"algorithm":"MD5","encryption":false,"port":161,"auth_traps_enabled":(true|false),' .
                    '"community_name":"(public|soak\d+x\d+)"\}$/', json_encode($answer)) == 1;
}

// Servers and port of one change each.
function is_overview($answer) {
  $servers = (object)['dnsPrimary' => $answer->dnsPrimary, 'dnsSecondary' => $answer->dnsSecondary];
  $port = ['AutoNegotiate' => $answer->AutoNegotiate, 'Speed' => $answer->Speed, 'Duplex' => $answer->Duplex];
  return is_host_name($answer->hostname) && are_servers($servers) && in_array(json_encode($port), PORTS);
}

function are_ipv4_settings($answer) {
  return is_host_name($answer->hostname) &&
         preg_match('/^\{"hostname":"[^"]*","dhcpEnabled":true,"ip":"10\.20\.0\.\d+","gateway":"10\.20\.0\.1","netmask":"255\.255\.255\.0"\}$/',
                    json_encode($answer)) == 1;
}

function read_something() {
  global $session;
  switch (mt_rand(0, 9)) {
    case 0: $answer = get_network_hostname(); return right('get_network_hostname', $answer, is_host_name($answer));
    case 1: $answer = get_network_dns($session); return right('get_network_dns', $answer, are_servers($answer));
    case 2: $answer = is_stateless_enabled(); return right('is_stateless_enabled', $answer, is_bool($answer));
    case 3: $answer = get_eth2_port_settings($session); return right('get_eth2_port_settings', $answer, in_array(json_encode($answer), PORTS));
    case 4: $answer = get_network_configuration_ipv4($session); return right('get_network_configuration_ipv4', $answer, are_ipv4_settings($answer));
    case 5: $answer = get_snmp_settings($session); return right('get_snmp_settings', $answer, are_agent_settings($answer));
    case 6: $answer = is_ipv6_enabled(); return right('is_ipv6_enabled', $answer, $answer === false);
    case 7: $answer = get_ssl_settings($session); return right('get_ssl_settings', $answer, json_encode($answer) == '{"isEnabled":false,"port":443,"cipher":"RSA"}');
    case 8: $answer = get_fw_settings($session); return right('get_fw_settings', $answer, is_overview($answer));
    default: $answer = get_snmp_trap_regs($session); return right('get_snmp_trap_regs', $answer, are_receivers($answer));
  }
}

// The services have room for few receivers, and every change of the agent's settings starts it again: a few processes
// do that.
function change_something($round) {
  global $number;
  $choice = mt_rand(0, 3);
  if ($number < 8 && $choice == 0) return change_receivers($round);
  if ($number >= 8 && $number < 12 && $choice == 0) return change_agent($round);
  switch (mt_rand(0, 3)) {
    case 0: return change('host_name', "soak-$number-$round", 'set_network_hostname', "soak-$number-$round");
    case 1:
      $rest = "$number." . $round % 250;
      return change('servers', "10.9.$rest 10.8.$rest", 'set_network_dns',
                    (object)['dnsPrimary' => "10.9.$rest", 'dnsSecondary' => "10.8.$rest"]);
    case 2:
      $wanted = $round % 2 == 0;
      return change('stateless', $wanted, 'set_stateless_enabled', $wanted);
    default:
      $port = json_decode(PORTS[mt_rand(0, 2)], true);
      return change('port', json_encode($port), 'set_eth2_port_settings', ...array_values($port));
  }
}

// A receiver comes, and the one that came before it goes.
function change_receivers($round) {
  global $session, $number, $told;
  change('receivers', "10.7.$number.$round", 'create_snmp_trap_reg', 1, "10.7.$number.$round", '162');
  called('get_snmp_trap_regs');
  foreach (get_snmp_trap_regs($session) as $receiver) {
    if (!preg_match("/^10\.7\.$number\./", $receiver->ip)) continue;
    if ($receiver->ip == "10.7.$number.$round") {
      $told['receivers'] = [$receiver->ip];
    } else {
      called('delete_snmp_trap_reg');
      delete_snmp_trap_reg($session, $receiver->id);
    }
  }
}

function change_agent($round) {
  global $number;
  $settings = ['version1' => true, 'trap1' => true, 'trap2' => true, 'auth_traps_enabled' => true];
  $community = "soak{$number}x$round";
  change('community', $community, 'set_snmp_settings', (object)($settings + ['community_name' => $community]));
}

// The services' database stays open from the first question on.
called('get_ssl_settings');
get_ssl_settings($session);
$descriptors = descriptors();
for ($round = 1, $end = microtime(true) + $seconds; microtime(true) < $end; ++$round) {
  for ($i = 0; $i < 4; ++$i) read_something();
  change_something($round);
}
$told['descriptors_more'] = descriptors() - $descriptors;
$told['children'] = children();
$told['warnings'] = $warnings;
$told['first_warning'] = $first_warning;
file_put_contents($result, json_encode($told));
