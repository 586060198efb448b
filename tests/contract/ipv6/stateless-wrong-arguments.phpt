--TEST--
A wrong argument is refused before anything else is done: the entry trace only, and null.
--FILE--
<?php
include 'scripted_platform.inc';
show(set_stateless_enabled());
show(set_stateless_enabled(new Session()));
show(set_stateless_enabled(new Session(), true, true));
show(set_stateless_enabled('admin', true));
show(set_stateless_enabled(null, false));
show(set_stateless_enabled(new Session(), array()));
show_refusals();
--EXPECT--
null
null
null
null
null
null
TRACE[time]:Entering set_stateless_enabled:<>
Warning: set_stateless_enabled() ...
TRACE[time]:Entering set_stateless_enabled:<>
Warning: set_stateless_enabled() ...
TRACE[time]:Entering set_stateless_enabled:<>
Warning: set_stateless_enabled() ...
TRACE[time]:Entering set_stateless_enabled:<>
Warning: set_stateless_enabled() ...
TRACE[time]:Entering set_stateless_enabled:<>
Warning: set_stateless_enabled() ...
TRACE[time]:Entering set_stateless_enabled:<>
Warning: set_stateless_enabled() ...
