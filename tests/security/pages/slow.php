<?php
// An answer that takes three seconds.
header('Content-Type: text/plain');
sleep(3);
echo "The end.\n";
