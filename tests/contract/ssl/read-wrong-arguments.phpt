--TEST--
A wrong argument is refused before anything else is done: the entry trace only, and null.
--FILE--
<?php
include 'scripted_platform.inc';
show(get_ssl_settings());
show(get_ssl_settings(new Session(), 1));
show(get_ssl_settings('admin'));
show(get_ssl_settings(null));
show_refusals();
--EXPECT--
null
null
null
null
TRACE[time]:Entering get_ssl_settings:<>
Warning: get_ssl_settings() ...
TRACE[time]:Entering get_ssl_settings:<>
Warning: get_ssl_settings() ...
TRACE[time]:Entering get_ssl_settings:<>
Warning: get_ssl_settings() ...
TRACE[time]:Entering get_ssl_settings:<>
Warning: get_ssl_settings() ...
