<?php
// Asking the device: what is so now, by a script of its own; and the module's functions that read, in bounded time. The module
// waits for a device script as long as that takes, and so would the page. So a guard stands beside the page while it
// reads: when ANSWER_SECONDS are over, whatever the page waits for is ended, and the module reports that it failed.

define('ANSWER_SECONDS', 3);
define('MOST_BYTES', 65536); // that are read of what the script prints
define('IPV6_SWITCH', APPLIANCE_FOLDER . '/CoreService/dat/ipv6Enabled'); // a file that is there while IPv6 is on
define('FACTS_SCRIPT', APPLIANCE_FOLDER . '/AppManager/bin/deviceFacts.sh');

// The guard, which begins behind the facts. It ends what the page's own thread has started: a change that the module has left to
// another thread goes on. Its standard input ends with the page.
define('GUARD', '
end_trees() {
  for process; do
    [ "$process" != $$ ] || continue
    children=
    read -r children <"/proc/$process/task/$process/children"
    kill -KILL "$process"
    end_trees $children
  done
}
watch() {
  sleep ' . ANSWER_SECONDS . '
  end_trees $facts
  while :; do
    now=
    read -r now <"/proc/$page/task/$page/children"
    end_trees $now
    sleep 0.2 || sleep 1
  done
}
exec >/dev/null
watch </dev/null &
watcher=$!
read -r end
end_trees $watcher $facts
wait
');

// What is under way: array of 'process', 'input', 'output', 'end', 'facts' (whether they are asked for) and 'leaves' (whether the
// session was left for that), or false.
$asked = false;
$printed_facts = ''; // what the script has printed

// Asks what is so now, and sets up the guard; returns at once. To be called before the module is asked for settings. What is
// under way already goes on. $facts: whether the page says anything about now; else the guard stands alone.
function ask_device($facts = true)
{
    if ($GLOBALS['asked']) {
        return;
    }
    $facts = $facts && has_facts();
    $line = 'page=' . getmypid() . ' facts=; ' . ($facts ? '/bin/sh ' . FACTS_SCRIPT . ' </dev/null & facts=$!; ' : '') . GUARD;
    $pipes = array();
    // Where no process is free it fails, and so does what the module asks for: the page says that.
    $process = @proc_open($line, array(0 => array('pipe', 'r'), 1 => array('pipe', 'w'), 2 => array('file', '/dev/null', 'w')),
        $pipes);
    // Other requests of the session need not wait for a script that hangs.
    $leaves = session_id() != '' && empty($GLOBALS['session_left']);
    if ($leaves) {
        leave_session();
    }
    $GLOBALS['asked'] = array('process' => $process, 'input' => $process ? $pipes[0] : false,
        'output' => $process ? $pipes[1] : false, 'end' => seconds_now() + ANSWER_SECONDS, 'facts' => $facts,
        'leaves' => $leaves);
    $GLOBALS['facts'] = null;
    $GLOBALS['printed_facts'] = '';
}

// 4.3 says it in two parts.
function seconds_now()
{
    $parts = explode(' ', microtime());
    return $parts[0] + $parts[1];
}

// To be called before anything is changed, and before the page is shown: takes what the device has said, and sends the guard
// away. Whose session was ended meanwhile is asked to sign in.
function end_asking()
{
    $asked = $GLOBALS['asked'];
    $GLOBALS['asked'] = false;
    if ($asked && $asked['process']) {
        if ($asked['facts']) {
            hear_facts($asked['output'], $asked['end']);
        }
        fclose($asked['output']);
        fclose($asked['input']);
        proc_close($asked['process']); // returns when the guard has gone
    }
    if ($asked && $asked['leaves'] && !return_to_session()) {
        unset($GLOBALS['session']);
        ask_to_sign_in('Your session has ended.');
    }
}

// A device may have no script for what is so now.
function has_facts()
{
    return is_readable(FACTS_SCRIPT);
}

// Reads until the script is done, or says too much, or the time is over.
function hear_facts($pipe, $end)
{
    $text = '?';
    stream_set_blocking($pipe, 0);
    while ($text != '' && strlen($GLOBALS['printed_facts']) < MOST_BYTES && wait_for_pipe($pipe, $end - seconds_now())) {
        $text = fread($pipe, 8192);
        $GLOBALS['printed_facts'] .= $text;
    }
}

function wait_for_pipe($pipe, $seconds)
{
    $seconds = max(0, $seconds);
    $readable = array($pipe);
    $none = null;
    $neither = null;
    return stream_select($readable, $none, $neither, (int) $seconds, (int) (1000000 * ($seconds - (int) $seconds))) > 0;
}
