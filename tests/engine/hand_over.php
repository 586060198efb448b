<?php
// Defines the functions of a module that runs in another process, see host/main.cc: each call is handed over
// with its arguments, and the page gets the result.

function engine_read($answers) {
  $length = fgets($answers);
  if ($length === false) exit("The engine has ended.\n");
  return stream_get_contents($answers, (int) $length);
}

function engine_call($function, $arguments) {
  global $engine_pipes;
  $request = serialize($arguments);
  fwrite($engine_pipes[0], $function . ' ' . strlen($request) . "\n" . $request);
  return unserialize(engine_read($engine_pipes[1]));
}

$engine_pipes = array();
$engine_process = proc_open(
    array('qemu-ppc', '-L', '/usr/powerpc-linux-gnu', getenv('ENGINE_HOST'), getenv('ENGINE_MODULE')),
    array(0 => array('pipe', 'r'), 1 => array('pipe', 'w'), 2 => STDERR), $engine_pipes);
foreach (explode(' ', engine_read($engine_pipes[1])) as $name) {
  eval("function $name() { return engine_call('$name', func_get_args()); }");
}
unset($name);
