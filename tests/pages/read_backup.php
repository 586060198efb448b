<?php
// Reads a file of settings from standard input, as the page does, and prints what it says as JSON: read_backup.php [NETWORKS]
// NETWORKS is the list of the networks within the appliance.
error_reporting(E_ALL);
define('INTERNAL_NETWORKS', isset($argv[1]) ? $argv[1] : '/dev/null');
$shared = dirname(dirname(dirname(__FILE__))) . '/http/pages/shared';
require "$shared/addresses.php";
require "$shared/settings_rules.php";
require "$shared/receivers.php";
require "$shared/backup_file.php";

$file = read_backup(stream_get_contents(STDIN));
echo json_encode(array('errors' => (object) $file['errors'], 'about' => (object) $file['about'], 'parts' => (object) $file['parts'],
    'again' => $file['errors'] ? '' : write_backup($file['about'], $file['parts'])));
