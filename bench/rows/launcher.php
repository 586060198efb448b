<?php
// ./run from built to answering; ./run --exec true.
// Outside of an appliance.
require dirname(__DIR__) . '/helpers.php';

function seconds_until_it_answers()
{
    $state = WORK . '/state';
    $socket = stream_socket_server('tcp://127.0.0.1:0');
    $port = (int) substr(strrchr(stream_socket_get_name($socket, false), ':'), 1);
    fclose($socket);
    $start = hrtime(true);
    $process = proc_open(array(CHECKOUT . '/run', '--port', (string) $port, '--state', $state),
        array(0 => array('file', '/dev/null', 'r'), 1 => array('file', '/dev/null', 'w'), 2 => array('file', '/dev/null', 'w')), $pipes);
    $page = false;
    while ($page === false && hrtime(true) - $start < 60e9) {
        usleep(5000);
        $page = @file_get_contents("http://127.0.0.1:$port/signin.php");
    }
    $time = hrtime(true) - $start;
    proc_terminate($process);
    proc_close($process);
    last_line(array('rm', '-rf', $state));
    if ($page === false) {
        fail('./run did not answer');
    }
    return $time;
}

function nanoseconds_of($command)
{
    $start = hrtime(true);
    last_line($command);
    return hrtime(true) - $start;
}

$samples = in_turn(array('seconds_until_it_answers', function () { return nanoseconds_of(array(CHECKOUT . '/run', '--exec', 'true')); },
    function () { return nanoseconds_of(array(CHECKOUT . '/appliance/launcher/launch', '--build', CHECKOUT . '/build', '--', 'true')); },
    function () { return nanoseconds_of(array('unshare', '--user', '--map-root-user', '--mount', '--pid', '--uts', '--ipc', '--net', '--fork', 'true')); }),
    amount(9, 1));
value_row('./run, built, until a page answers', 'ns', at_most(1e9), $samples[0]);
value_row('./run --exec true', 'ns', at_most(0.8e9), $samples[1]);
// Where the time goes: without looking for what is missing or changed; namespaces alone.
value_row('... the launcher alone, without installing and building', 'ns', null, $samples[2]);
value_row('... namespaces without anything in them', 'ns', null, $samples[3]);
