<?php
/* An answer that takes its time: tells by a file that it has begun, and ends when another file is there. */

header('Content-Type: text/plain');
echo str_repeat("The beginning.\n", 1000);
flush();
touch('/tmp/slow.begun');
for ($tries = 0; $tries < 1000 && !file_exists('/tmp/slow.end'); $tries++) {
    usleep(10000);
    clearstatcache();
}
echo "The end.\n";
