--TEST--
These are the functions, in the order of the table, with the names and types of their arguments; none is passed by reference.
--FILE--
<?php
include 'scripted_platform.inc';
$module = new ReflectionExtension('network');
foreach ($module->getFunctions() as $function) {
  $arguments = array();
  foreach ($function->getParameters() as $argument) {
    $reference = $argument->isPassedByReference() ? '&' : '';
    $default = $argument->isOptional() ? ' optional' : '';
    $arguments[] = $argument->getType() . " $reference\$" . $argument->getName() . $default;
  }
  echo $function->getName(), '(', implode(', ', $arguments), '): ', $function->getReturnType(), "\n";
}
--EXPECT--
get_network_configuration_ipv4(object $session): ?object
set_network_configuration_ipv4(object $session, object $settings): void
get_network_configuration_ipv6(object $session): ?object
set_network_configuration_ipv6(object $session, object $settings): void
is_ipv6_enabled(): bool
set_ipv6_enabled(object $session, bool $enabled): void
is_ipv6_static_enabled(): bool
is_stateless_enabled(): bool
set_stateless_enabled(object $session, bool $enabled): void
is_ipv6_dhcp_enabled(): bool
set_ipv6_dhcp_enabled(object $session, bool $enabled): void
get_all_ipv6_addresses(): array
get_network_dns(object $session): ?object
set_network_dns(object $session, object $settings): void
get_network_hostname(): string
set_network_hostname(object $session, string $name): void
get_ssl_settings(object $session): ?object
set_ssl_settings(object $session, bool $enabled): void
get_snmp_settings(object $session): ?object
set_snmp_settings(object $session, object $settings): void
restart_snmp(object $session): void
get_snmp_trap_regs(object $session): ?array
create_snmp_trap_reg(object $session, int $transport, string $ip, string $port): void
delete_snmp_trap_reg(object $session, string $id): void
get_fw_settings(object $session): ?object
set_eth2_port_settings(object $session, int $auto_negotiate, int $speed, int $duplex): void
get_eth2_port_settings(object $session): ?object
