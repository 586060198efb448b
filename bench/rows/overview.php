<?php
// The Overview page, beside an equal page in plain PHP with shell_exec: requests per second, four at a time.
require dirname(__DIR__) . '/helpers.php';

define('LIBRARY', '/home/embedded/library');
define('WEB', 'http://127.0.0.1');

// The document root becomes a copy with two pages more: the Overview, but for whom it asks. One of them starts no program for
// the rows of the database.
function add_plain_overviews()
{
    $root = LIBRARY . '/HTTPService/lighttpd/htdocs';
    last_line("mkdir -p /tmp/htdocs && cp -r $root/. /tmp/htdocs && mount --bind /tmp/htdocs $root && chmod 755 $root");
    $page = str_replace(array('get_fw_settings(', 'get_snmp_trap_regs('), array('plain_fw_settings(', 'plain_snmp_trap_regs('),
        file_get_contents("$root/index.php"), $replaced);
    if ($replaced != 2) {
        fail('the Overview page is another one than is known here');
    }
    $plain = preg_replace('/^<\?php$/m', '', file_get_contents(dirname(__DIR__) . '/plain_overview.php'), 1);
    file_put_contents("$root/plain.php", $page . $plain);
    preg_match_all("/plain_row\\('([^']*)'\\)/", $plain, $found);
    $rows = array();
    foreach ($found[1] as $query) {
        $rows[$query] = rtrim((string) shell_exec('sqlite3 -readonly ' . DATABASE . ' ' . escapeshellarg($query)), "\n");
    }
    file_put_contents("$root/rows_given.php", '<?php $given_rows = ' . var_export($rows, true) . "; ?>" . $page . $plain);
    last_line("chmod -R a+rX $root");
}

// Returns the cookie of a session.
function sign_in()
{
    @unlink(LIBRARY . '/HTTPService/dat/users');
    preg_match('/^admin (\S+)/m', shell_exec('/bin/sh ' . LIBRARY . '/AppManager/bin/firstPassword.sh'), $account);
    $curl = 'curl --silent --cookie-jar /tmp/bench.jar --cookie /tmp/bench.jar ';
    preg_match('/name="token" value="([0-9a-f]*)"/', shell_exec($curl . WEB . '/signin.php'), $token);
    shell_exec($curl . "--data-urlencode token={$token[1]} --data-urlencode user=admin --data-urlencode 'password={$account[1]}' "
        . '--data-urlencode next=index.php ' . WEB . '/signin.php');
    foreach (file('/tmp/bench.jar') as $line) {
        $fields = explode("\t", rtrim($line));
        if (isset($fields[6]) && $fields[5] == 'settings') {
            return "settings={$fields[6]}";
        }
    }
    fail('nobody could sign in');
}

// What the page says, without what is so at this moment only.
function text_of_page($page, $cookie)
{
    $html = shell_exec('curl --silent --header ' . escapeshellarg("Cookie: $cookie") . ' ' . WEB . "/$page");
    $text = preg_replace('/\s+/', ' ', strip_tags(preg_replace('#^.*<main|</main>.*$#s', '', $html)));
    return preg_replace('/\d+ (seconds?|minutes?|hours?|days?)|\d+:\d+(:\d+)?|\d+(\.\d+)? ?(MB|MiB|%)/', '', $text);
}

function requests_per_second($page, $cookie)
{
    return function () use ($page, $cookie) {
        $report = shell_exec('wrk --threads 1 --connections 4 --timeout 20s --duration ' . amount('3s', '1s') . ' --header '
            . escapeshellarg("Cookie: $cookie") . ' ' . WEB . "/$page");
        if (!preg_match('#^Requests/sec: *([0-9.]+)#m', $report, $found) || preg_match('/Non-2xx/', $report)) {
            fail("not every request was answered: $report");
        }
        return (float) $found[1];
    };
}

add_plain_overviews();
$cookie = sign_in();
foreach (array('plain.php', 'rows_given.php') as $page) {
    if (text_of_page('index.php', $cookie) != text_of_page($page, $cookie) || strpos(text_of_page($page, $cookie), 'Overview') === false) {
        fail("the two pages do not say the same:\n" . text_of_page('index.php', $cookie) . "\n" . text_of_page($page, $cookie));
    }
}
$samples = in_turn(array_map(function ($page) use ($cookie) { return requests_per_second($page, $cookie); },
    array('index.php', 'plain.php', 'rows_given.php')), amount(7, 1));
ratio_row('the Overview page', 'plain PHP, shell_exec', 'requests/s', at_least(1.5), $samples[0], $samples[1]);
// Where the difference lies: without the three starts of sqlite3, which another way to the rows would save.
ratio_row('... the Overview page', 'plain PHP, shell_exec, rows given', 'requests/s', null, $samples[0], $samples[2]);
