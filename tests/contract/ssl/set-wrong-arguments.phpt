--TEST--
A wrong argument is refused before anything else is done: the entry trace only, and null.
--FILE--
<?php
include 'scripted_platform.inc';
show(set_ssl_settings());
show(set_ssl_settings(new Session()));
show(set_ssl_settings(new Session(), true, 1));
show(set_ssl_settings('admin', true));
show(set_ssl_settings(new Session(), array()));
show(set_ssl_settings(new Session(), new Session()));
show_refusals();
--EXPECT--
null
null
null
null
null
null
TRACE[time]:Entering set_ssl_settings:<>
Warning: set_ssl_settings() ...
TRACE[time]:Entering set_ssl_settings:<>
Warning: set_ssl_settings() ...
TRACE[time]:Entering set_ssl_settings:<>
Warning: set_ssl_settings() ...
TRACE[time]:Entering set_ssl_settings:<>
Warning: set_ssl_settings() ...
TRACE[time]:Entering set_ssl_settings:<>
Warning: set_ssl_settings() ...
TRACE[time]:Entering set_ssl_settings:<>
Warning: set_ssl_settings() ...
