--TEST--
A process that serves one request after the other answers each like the first.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), 'library');
append_to(platform_file('ask.php'), '<?php echo get_network_hostname(), "\n"; define("EARLIER_REQUEST", 1); echo getmypid(), "\n";');
// By a port, in a network of its own: it is the only way that every engine's FastCGI program has.
append_to(platform_file('requests.sh'), '
ip link set lo up
LD_PRELOAD=' . dirname(getenv('SCRIPTED_PLATFORM_MODULE')) . '/libdovan_util.so $SCRIPTED_PLATFORM_CGI -b 9000 &
export SCRIPT_FILENAME=' . platform_file('ask.php') . ' REQUEST_METHOD=GET
tries=0
while [ $tries -lt 1000 ] && ! cgi-fcgi -bind -connect 127.0.0.1:9000 >/dev/null 2>&1; do sleep 0.01; tries=$((tries + 1)); done
for request in 1 2 3; do cgi-fcgi -bind -connect 127.0.0.1:9000 | tr -d "\r" | sed "1,/^\$/d"; done
kill $!
# One that is told so just before it waits for a request ends with the next one.
cgi-fcgi -bind -connect 127.0.0.1:9000 >/dev/null 2>&1
');
$answers = explode("\n", trim(shell_exec('unshare --net sh ' . platform_file('requests.sh') . ' 2>/dev/null')));
for ($i = 0; $i < 6; $i += 2) echo $answers[$i], "\n";
echo count(array_unique(array($answers[1], $answers[3], $answers[5]))), " process\n";
--EXPECT--
library
library
library
1 process
