--TEST--
The module is "network" 0.1, without settings, constants, classes or dependencies.
--FILE--
<?php
include 'scripted_platform.inc';
$module = new ReflectionExtension('network');
show($module->getName());
show($module->getVersion());
show($module->getINIEntries());
show($module->getConstants());
show($module->getClassNames());
show($module->getDependencies());
show($module->isPersistent());
--EXPECT--
"network"
"0.1"
array()
array()
array()
array()
true
