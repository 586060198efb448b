--TEST--
The stub for editors has the module's functions in the same order, each with its arguments and a comment.
--FILE--
<?php
include 'scripted_platform.inc';
function argument_text($argument) {
  return ($argument->isPassedByReference() ? '&' : '') . $argument->getType() . ' $' . $argument->getName();
}
$module = new ReflectionExtension('network');
$of_module = array();
foreach ($module->getFunctions() as $function) {
  $arguments = implode(', ', array_map('argument_text', $function->getParameters()));
  $of_module[] = 'function ' . $function->getName() . "($arguments): " . $function->getReturnType() . ' {}';
}
$stub = implode('', file(platform_file('src') . '/network.stub.php'));
preg_match_all('/^function .*/m', $stub, $of_stub);
preg_match_all('|^ \*/\nfunction .*|m', $stub, $commented);
foreach (array_diff_assoc($of_module, $of_stub[0]) as $line) echo "only the module has: $line\n";
foreach (array_diff_assoc($of_stub[0], $of_module) as $line) echo "only the stub has: $line\n";
echo count($of_module) > 0 ? "the module has functions\n" : "the module has no functions\n";
echo count($of_module) == count($commented[0]) ? "each has a comment\n" : "not each has a comment\n";
--EXPECT--
the module has functions
each has a comment
