<?php
// open_connections.php URL COUNT SECONDS [ADDRESS...]: opens so many connections, from each address in turn where some are named,
// sends a byte of a request on each, and a further one every two seconds on all that are there. Says "tried COUNT" when all were
// tried: a server that is busy takes some late or not at all. Says at the end how many it has left.
const AT_ONCE = 50;
const SECONDS_TO_CONNECT = 2;

list(, $url, $count, $seconds) = $argv;
$addresses = array_slice($argv, 4);
$connections = array();
for ($tried = 0; $tried < $count;) {
    $connecting = array();
    for (; $tried < $count && count($connecting) < AT_ONCE; $tried++) {
        $context = $addresses ? array('socket' => array('bindto' => $addresses[$tried % count($addresses)] . ':0')) : array();
        $connection = @stream_socket_client($url, $number, $why, SECONDS_TO_CONNECT,
            STREAM_CLIENT_CONNECT | STREAM_CLIENT_ASYNC_CONNECT, stream_context_create($context));
        if ($connection) {
            $connecting[] = $connection;
        }
    }
    for ($until = microtime(true) + SECONDS_TO_CONNECT; $connecting && microtime(true) < $until;) {
        $none = null;
        $connected = $connecting;
        if (!stream_select($none, $connected, $none, SECONDS_TO_CONNECT)) {
            break;
        }
        foreach ($connected as $key => $connection) {
            unset($connecting[$key]);
            stream_set_blocking($connection, false);
            @fwrite($connection, 'G');
            $connections[] = $connection;
        }
    }
}
$connecting = array();
echo "tried $tried\n";
for ($until = time() + $seconds; time() < $until; sleep(2)) {
    foreach ($connections as $key => $connection) {
        if (@fwrite($connection, 'G') === false || (@fread($connection, 10) === '' && feof($connection))) {
            unset($connections[$key]);
        }
    }
}
echo 'left ', count($connections), "\n";
