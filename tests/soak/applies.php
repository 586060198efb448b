<?php
// Many calls that apply addresses, at once in one process: applies.php CALLS. Each leaves a thread behind that does it
// after the answer.
include __DIR__ . '/common.php';

$calls = (int)$argv[1];
const SECONDS_AT_MOST = 400;
const LOCK_OF_SETTINGS = '/run/appmanager/settings.lock';
$session = new Session();
set_ipv6_enabled($session, true);

$descriptors = descriptors();
$addresses = [];
$begin = microtime(true);
// As if another change were under way: so none of them is done before the last has begun.
$lock = fopen(LOCK_OF_SETTINGS, 'a');
flock($lock, LOCK_EX);
for ($i = 0; $i < $calls; ++$i) {
  if ($i % 2 == 0) {
    $address = '10.20.0.' . (160 + $i / 2 % 80);
    set_network_configuration_ipv4($session, (object)['hostname' => 'library', 'ip' => $address, 'netmask' => '255.255.255.0', 'gateway' => '10.20.0.1']);
  } else {
    $address = '2001:db8:20::' . dechex(0x1000 + $i);
    set_network_configuration_ipv6($session, (object)['staticEnabled' => '1', 'ipStatic' => $address, 'gateway' => '2001:db8:20::1', 'prefix' => '64']);
  }
  $addresses[] = $address;
}
found('seconds_of_calls', round(microtime(true) - $begin, 1));
found('threads_at_once', threads() - 1);
fclose($lock);
while (threads() > 1 && microtime(true) - $begin < SECONDS_AT_MOST) usleep(50000);
found('seconds', round(microtime(true) - $begin));
found('threads_left', threads() - 1);
found('descriptors_more', descriptors() - $descriptors);
found('children', children());
found_warnings();

$judged = judge_log();
found_log($judged);
function messages($names) {
  global $judged;
  return array_sum(array_map(fn($name) => $judged['messages'][$name] ?? 0, $names));
}
found('begun', messages(['Entering set_network_ipv4', 'Entering set_network_ipv6']));
$done = messages(['Leaving set_network_ipv4', 'Leaving set_network_ipv6']);
$refused = messages(['Could not set library hostname', 'Could not set network settings (dhcp off).', 'Failed to enable static IPv6 address: ']);
found('done', $done);
found('refused', $refused);
found('ended', $done + $refused);

// One of each family is so now, as it is stored, and no other of them.
function in_force($family) {
  preg_match_all('/ inet6? ([^ \/]+)/', shell_exec("exec ip -$family -oneline address show dev eth0 scope global"), $found);
  return $found[1];
}
$ipv4 = get_network_configuration_ipv4($session);
found('ipv4_dhcp', json_encode($ipv4->dhcpEnabled));
found('ipv4', in_array($ipv4->ip, $addresses) ? 'one of the written' : $ipv4->ip);
found('ipv4_in_force', in_force(4) == [$ipv4->ip] ? 'yes' : implode(' ', in_force(4)));
$ipv6 = inet_ntop(inet_pton(get_network_configuration_ipv6($session)->ipStatic));
found('ipv6', in_array($ipv6, $addresses) ? 'one of the written' : $ipv6);
found('ipv6_in_force', array_values(array_intersect(in_force(6), $addresses)) == [$ipv6] ? 'yes' : implode(' ', in_force(6)));
