<?php
// open_connections.php URL COUNT SECONDS [ADDRESS...]: opens so many connections, from each address in turn where some are named,
// sends a byte of a request on each, and a further one every two seconds on all that are there. Says "open N" when all are, and
// at the end how many the server has left.
list(, $url, $count, $seconds) = $argv;
$addresses = array_slice($argv, 4);
$connections = array();
while (count($connections) < $count) {
    $context = $addresses ? array('socket' => array('bindto' => $addresses[count($connections) % count($addresses)] . ':0')) : array();
    $connection = @stream_socket_client($url, $number, $why, 5, STREAM_CLIENT_CONNECT, stream_context_create($context));
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
