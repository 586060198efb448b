--TEST--
Configuring the build refuses a thread-safe engine, a debug engine and one that is not there, each with a sentence that says why.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
mkdir('/tmp/engine');
write_script('/tmp/engine/php-config', "#!/bin/sh\necho -I/tmp/engine\n");
chmod('/tmp/engine/php-config', 0755);
write_script('/tmp/engine/CMakeLists.txt', 'cmake_minimum_required(VERSION 3.25)
project(engine LANGUAGES CXX)
include(' . platform_file('cmake/Engine.cmake') . ')');

function configure($header, $php_config = '/tmp/engine/php-config') {
  write_script('/tmp/engine/php.h', $header);
  exec("cmake -G Ninja -S /tmp/engine -B /tmp/engine/build -DPHP_CONFIG=$php_config 2>&1", $lines, $status);
  $said = preg_replace('/\s+/', ' ', implode(' ', $lines));
  echo $status == 0 ? 'accepted' : 'refused';
  foreach (array('is thread-safe', 'is a debug build', "'/tmp/none --includes' failed") as $reason) {
    if (strpos($said, $reason)) echo ": $reason";
  }
  echo "\n";
}

configure("#define ZEND_DEBUG 0\n");
configure("#define ZEND_DEBUG 0\n#define ZTS 1\n");
configure("#define ZEND_DEBUG 1\n");
configure("#define ZEND_DEBUG 0\n", '/tmp/none');
--EXPECT--
accepted
refused: is thread-safe
refused: is a debug build
refused: '/tmp/none --includes' failed
