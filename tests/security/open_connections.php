<?php
// open_connections.php URL COUNT SECONDS: opens so many connections, sends a byte of a request on each, and a further one every
// two seconds on all that are there. Says "open N" when all are, and at the end how many the server has left.
list(, $url, $count, $seconds) = $argv;
$connections = array();
while (count($connections) < $count) {
    $connection = @stream_socket_client($url, $number, $why, 5);
    if (!$connection) {
        break;
    }
    stream_set_blocking($connection, false);
    @fwrite($connection, 'G');
    $connections[] = $connection;
}
echo 'open ', count($connections), "\n";
for ($until = time() + $seconds; time() < $until; sleep(2)) {
    foreach ($connections as $key => $connection) {
        if (@fwrite($connection, 'G') === false || (@fread($connection, 10) === '' && feof($connection))) {
            unset($connections[$key]);
        }
    }
}
echo 'left ', count($connections), "\n";
