<?php

/**
 * The functions of the module "network" as an editor of pages sees them, in the order of the module's table.
 *
 * $session is the signed-in user's session object; its property "user" names the user in the audit trail. A wrong
 * argument is a warning, and the function returns null. A step that fails is a warning too, with a code and a line;
 * the function then goes on with what it has.
 */

/**
 * The IPv4 settings and the host name.
 *
 * @return object|null hostname (string), dhcpEnabled (bool), ip, gateway, netmask (string, dotted decimal)
 */
function get_network_configuration_ipv4(object $session): ?object {}

/**
 * Applies host name and IPv4 settings three seconds after it has returned. The outcome is in the next read and in the
 * trace log.
 *
 * @param object $settings hostname, dhcpEnabled (any text means on), ip, netmask, gateway
 */
function set_network_configuration_ipv4(object $session, object $settings): void {}

/**
 * The static IPv6 settings.
 *
 * @return object|null staticEnabled (bool), ipStatic, gateway (string, eight hexadecimal groups), prefix (string)
 */
function get_network_configuration_ipv6(object $session): ?object {}

/**
 * Sets or removes the static IPv6 address after it has returned. The outcome is in the next read and in the trace log.
 *
 * @param object $settings staticEnabled (any text means on), ipStatic, gateway, prefix
 */
function set_network_configuration_ipv6(object $session, object $settings): void {}

/**
 * Whether IPv6 is on at all. Arguments are ignored.
 */
function is_ipv6_enabled(): bool {}

/**
 * Switches IPv6 on or off.
 */
function set_ipv6_enabled(object $session, bool $enabled): void {}

/**
 * Whether a static IPv6 address is configured. Arguments are ignored.
 */
function is_ipv6_static_enabled(): bool {}

/**
 * Whether addresses are taken from router advertisements. Arguments are ignored.
 */
function is_stateless_enabled(): bool {}

/**
 * Switches addresses from router advertisements on or off.
 */
function set_stateless_enabled(object $session, bool $enabled): void {}

/**
 * Whether addresses are taken from a DHCPv6 server. Arguments are ignored.
 */
function is_ipv6_dhcp_enabled(): bool {}

/**
 * Switches addresses from a DHCPv6 server on or off.
 */
function set_ipv6_dhcp_enabled(object $session, bool $enabled): void {}

/**
 * The global IPv6 addresses of the primary port. Arguments are ignored.
 *
 * @return string[]
 */
function get_all_ipv6_addresses(): array {}

/**
 * The DNS servers.
 *
 * @return object|null dnsPrimary, dnsSecondary (string, empty where there is none)
 */
function get_network_dns(object $session): ?object {}

/**
 * Sets the DNS servers.
 *
 * @param object $settings dnsPrimary, dnsSecondary
 */
function set_network_dns(object $session, object $settings): void {}

/**
 * The appliance's host name, as its device script prints it. Arguments are ignored.
 */
function get_network_hostname(): string {}

/**
 * Sets the appliance's host name. Does nothing when it is the name already; otherwise SSL, when it is on, is switched
 * on again for the new name.
 *
 * @param string $name letters, digits, hyphens and dots; at most 64 characters
 */
function set_network_hostname(object $session, string $name): void {}

/**
 * The SSL mode of the web service.
 *
 * @return object|null isEnabled (bool), port (int), cipher (string)
 */
function get_ssl_settings(object $session): ?object {}

/**
 * Sets the SSL mode of the web service, which is restarted in the new mode.
 */
function set_ssl_settings(object $session, bool $enabled): void {}

/**
 * The settings of the SNMP agent.
 *
 * @return object|null version1, version2, version3, trap1, trap2 (bool), algorithm (string), encryption (bool),
 *                     port (int), auth_traps_enabled (bool), community_name (string)
 */
function get_snmp_settings(object $session): ?object {}

/**
 * Sets the SNMP agent and restarts it. Version 3 is always on, version 2 goes with version 1.
 *
 * @param object $settings version1, trap1, trap2, auth_traps_enabled, community_name
 */
function set_snmp_settings(object $session, object $settings): void {}

/**
 * Restarts the sending of traps and sends a test trap to every receiver.
 */
function restart_snmp(object $session): void {}

/**
 * The receivers of traps.
 *
 * @return object[]|null each with transport (int), ip (string), port (int), id (string)
 */
function get_snmp_trap_regs(object $session): ?array {}

/**
 * Adds a receiver of traps.
 *
 * @param int    $transport 1 UDP, 2 TCP
 * @param string $ip        IPv4 or IPv6 address
 * @param string $port      decimal digits
 */
function create_snmp_trap_reg(object $session, int $transport, string $ip, string $port): void {}

/**
 * Removes a receiver of traps. An unknown identifier is no failure.
 *
 * @param string $id as get_snmp_trap_regs gives it
 */
function delete_snmp_trap_reg(object $session, string $id): void {}

/**
 * All network settings in one object.
 */
function get_fw_settings(object $session): ?object {}

/**
 * Sets the link parameters of the secondary Ethernet port.
 *
 * @param int $auto_negotiate 0 off, any other number on
 * @param int $speed          10 or 100 Mbit/s; any other number becomes 10
 * @param int $duplex         0 half, any other number full
 */
function set_eth2_port_settings(object $session, int $auto_negotiate, int $speed, int $duplex): void {}

/**
 * The link parameters of the secondary Ethernet port.
 *
 * @return object|null AutoNegotiate (int, 1 on), Speed (int, Mbit/s), Duplex (int, 1 full, 0 half, -1 unknown)
 */
function get_eth2_port_settings(object $session): ?object {}
