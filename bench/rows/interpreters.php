<?php
// is_ipv6_enabled() in 1, 4, 16 and 64 interpreters at once: all their calls per second.
require dirname(__DIR__) . '/helpers.php';

$per_call = $in_use = array(); // processor time in nanoseconds, and how many processors that is, by candidate and round

// A round of so many processes, which begin and end together. $words: each; it is told when.
function at_once($name, $count, $words, $further = array())
{
    return function () use ($name, $count, $words, $further) {
        global $per_call, $in_use;
        $start = hrtime(true) + 500e6 + $count * 40e6;
        $end = $start + amount(0.7e9, 0.3e9);
        $processes = $outputs = array();
        for ($number = 0; $number < $count; $number++) {
            $processes[] = proc_open(array_merge($words, array(sprintf('%d', $start), sprintf('%d', $end)), $further),
                array(1 => array('pipe', 'w')), $pipes);
            $outputs[] = $pipes[1];
        }
        $calls = $used = 0;
        foreach ($outputs as $number => $output) {
            $printed = explode(' ', stream_get_contents($output));
            $calls += (int) $printed[0];
            $used += isset($printed[1]) ? (float) $printed[1] : 0;
            if (proc_close($processes[$number]) != 0) {
                fail("not all of $count processes were there in time");
            }
        }
        file_put_contents(TRACE_LOG, '');
        if ($calls == 0) {
            fail("none of $count processes had a turn");
        }
        $per_call[$name][] = $used / $calls;
        $in_use[$name][] = $used / ($end - $start);
        return $calls / (($end - $start) / 1e9);
    };
}

$interpreter = array_merge(interpreter(true), array(dirname(__DIR__) . '/count_calls.php', 'is_ipv6_enabled'));
$candidates = array('4 again' => at_once('4 again', 4, $interpreter));
$most = amount(64, 16);
foreach (array_unique(array(1, 4, 16, $most)) as $count) {
    $candidates[$count] = at_once($count, $count, $interpreter);
}
$plain = array_merge(interpreter(false), array(dirname(__DIR__) . '/count_calls.php', 'plain_is_ipv6_enabled'));
foreach (array_unique(array(4, 16, $most)) as $count) {
    $candidates["plain $count"] = at_once("plain $count", $count, $plain);
    $candidates["bare $count"] = at_once("bare $count", $count, array(PROGRAMS . '/flag_file', 'is_ipv6_enabled', 'IPv6'),
        array('/home/embedded/library/CoreService/dat/ipv6Enabled'));
}
$samples = in_turn($candidates, amount(7, 1));
ratio_row('4 interpreters', '1', 'calls/s', null, $samples[4], $samples[1]);
// How much two rounds of the same differ.
ratio_row('... 4 interpreters', 'the same 4 once more', 'calls/s', null, $samples[4], $samples['4 again']);
foreach (array_unique(array(16, $most)) as $count) {
    // What more of them bring than fill the processors must not be less, but for what comes by chance.
    ratio_row("$count interpreters", '4', 'calls/s', at_least(0.95), $samples[$count], $samples[4]);
    // What a fall is made of: calls that take more of a processor, and processors that are not in use.
    ratio_row("... $count interpreters, processor time of a call", '4', 'ns', null, $per_call[$count], $per_call[4]);
    ratio_row("... $count interpreters, processors in use", '4', '', null, $in_use[$count], $in_use[4]);
    // The same without the module, and without an interpreter.
    ratio_row("... $count interpreters in plain PHP", '4', 'calls/s', null, $samples["plain $count"], $samples['plain 4']);
    ratio_row("... the same system calls, by $count programs in C++", '4', 'calls/s', null, $samples["bare $count"], $samples['bare 4']);
}
