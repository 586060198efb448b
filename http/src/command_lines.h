// Every command line of the module. A text that ends in a blank is completed by the caller with the
// value it sets, as it is: nothing is quoted here.
#pragma once

#define COMMAND_WRAPPER "/usr/bin/cmdwrap -NO_END_OF_FILE "
#define IPV4_MANAGER COMMAND_WRAPPER "/bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh "
#define IPV6_MANAGER COMMAND_WRAPPER "/bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh "
#define IPV6_ENABLED_FILE "/home/embedded/library/CoreService/dat/ipv6Enabled"

// The fields of a settings text, in both directions.
constexpr char SettingsSeparator[] = "?";

// Settings that are kept as the existence of a file.
namespace FlagFile {
constexpr char Ipv6Enabled[] = IPV6_ENABLED_FILE;
constexpr char Ipv6Dhcp[] = "/etc/ipv6dhcp";
}  // namespace FlagFile

namespace CommandLine {
// IPv4 and host name
constexpr char ReadDhcpLease[] = IPV4_MANAGER "-d status";
constexpr char ReadStaticIpv4[] = IPV4_MANAGER "-g static";
constexpr char ReadHostName[] = IPV4_MANAGER "-g host";
constexpr char SetHostName[] = IPV4_MANAGER "-n ";  // name
constexpr char SwitchDhcpOn[] = IPV4_MANAGER "-c -d on";
constexpr char SetStaticIpv4[] = IPV4_MANAGER "-c -s ";  // address?netmask?gateway
// secondary Ethernet port
constexpr char ReadPort[] = IPV4_MANAGER "-g port";
constexpr char SetPort[] = IPV4_MANAGER "-P ";  // autonegotiation?speed?duplex
// IPv6
constexpr char EnableIpv6[] = COMMAND_WRAPPER "/bin/touch " IPV6_ENABLED_FILE;
constexpr char DisableIpv6[] = COMMAND_WRAPPER "/bin/rm " IPV6_ENABLED_FILE;
constexpr char ReadStateless[] = IPV6_MANAGER "-l";
constexpr char SetStateless[] = IPV6_MANAGER "-L ";       // 1 or 0
constexpr char SwitchIpv6Dhcp[] = IPV6_MANAGER "-c -d ";  // on or off
constexpr char ReadStaticIpv6[] = IPV6_MANAGER "-g static";
constexpr char ListIpv6Addresses[] = IPV6_MANAGER "-g all";
constexpr char SetStaticIpv6[] = IPV6_MANAGER "-c -s ";  // address/prefix?gateway
constexpr char RemoveStaticIpv6[] = IPV6_MANAGER "-r ";  // run as it is, with its blank
// DNS
constexpr char ReadDns[] = IPV6_MANAGER "-g dns";
constexpr char SetDns[] = IPV6_MANAGER "-D ";  // "primary secondary", quoted
// SNMP traps; run by the C library, so the shell is searched in its path
constexpr char TestTrapRegistrations[] = COMMAND_WRAPPER "sh /home/embedded/library/testTrapRegistration.sh";
}  // namespace CommandLine

#undef COMMAND_WRAPPER
#undef IPV4_MANAGER
#undef IPV6_MANAGER
#undef IPV6_ENABLED_FILE
