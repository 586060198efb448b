--TEST--
Where every step succeeds, the page is warned of nothing, also of no code that says so.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
write_script(IPV4_SCRIPT, 'echo library-7');
show(get_network_hostname());
show(set_network_hostname(new Session(), 'library-8'));
show(set_ssl_settings(new Session(), true));
show(get_ssl_settings(new Session()));
show_lines('/^(TRACE|Warning|Error)/');
--EXPECT--
"library-7"
null
null
stdClass {isEnabled: true, port: integer 443, cipher: "RSA"}
TRACE[time]:Entering get_network_hostname:<>
TRACE[time]:Output = :<library-7>
TRACE[time]:Exiting get_network_hostname:<>
TRACE[time]:Entering set_network_hostname:<>
TRACE[time]:Exiting set_network_hostname:<>
TRACE[time]:Entering set_ssl_settings:<>
TRACE[time]:NOTE: The HTTP service will be restarted by appmanager in the new SSL Mode
TRACE[time]:Exiting set_ssl_settings:<>
TRACE[time]:Entering get_ssl_settings:<>
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
TRACE[time]:Exiting get_ssl_settings:<>
