<?php
// Files of the pages' own, which the web service alone may read: accounts, sessions and changes under way.

define('PRIVATE_FOLDER', APPLIANCE_FOLDER . '/HTTPService/dat');
define('SESSIONS_FOLDER', PRIVATE_FOLDER . '/sessions');

function make_private_folders()
{
    foreach (array(PRIVATE_FOLDER, SESSIONS_FOLDER) as $folder) {
        if (!is_dir($folder)) {
            mkdir($folder, 0700);
        }
    }
}

// Writes another file and gives it the name when it is complete: whoever reads at any moment gets the old content or the
// new one. $durable: it is on the disk before it gets the name, where the engine can say so. Returns whether that worked; that it
// did not, on a full disk, say, is the caller's to tell, and no fault of the page.
function replace_file($path, $content, $durable = false)
{
    $new = $path . '.' . random_hex(4);
    $mask = umask(077);
    $file = @fopen($new, 'wb');
    $written = $file && @fwrite($file, $content) === strlen($content) && @fflush($file)
        && (!$durable || put_on_disk($file)) && fclose($file) && keep_owner($path, $new);
    umask($mask);
    if ($written && @rename($new, $path)) {
        if ($durable) {
            exec("sync '" . dirname($path) . "' 2>/dev/null || sync"); // the name, too
        }
        return true;
    }
    error_log('The file ' . $path . ' cannot be written: its disk is full, or may not be written.');
    if ($file) {
        @unlink($new);
    }
    return false;
}

// Root, who writes a file of the web service's user, leaves it to that one. $old: the file that is replaced, which may be missing. What
// somebody else has put into the folder becomes the folder's owner's: nobody else could leave it to who has made it.
function keep_owner($old, $new)
{
    clearstatcache();
    $model = file_exists($old) && $old != $new ? $old : dirname($old);
    return fileowner($model) == fileowner($new) || @chown($new, fileowner($model)) && @chgrp($new, filegroup($model))
        || fileowner($new) == fileowner(dirname($new));
}

// What a replace_file() that was killed has left. To be called by who holds the lock under which the file is replaced.
function remove_unfinished($path)
{
    $folder = opendir(dirname($path));
    while ($folder && ($name = readdir($folder)) !== false) {
        if (preg_match('/^' . basename($path) . '\.[0-9a-f]{8}$/D', $name)) {
            @unlink(dirname($path) . '/' . $name);
        }
    }
    if ($folder) {
        closedir($folder);
    }
}

// 4.3 cannot say it of one file.
function put_on_disk($file)
{
    if (function_exists('fsync')) {
        return fsync($file);
    }
    exec('sync');
    return true;
}

// Opens a file for reading and writing, and keeps others who open it so waiting until it is closed. Makes it where it is
// missing; false when that fails.
function open_locked($path)
{
    $mask = umask(077);
    $is_new = !file_exists($path);
    $file = @fopen($path, 'a+b');
    umask($mask);
    if ($file && $is_new) {
        keep_owner($path, $path);
    }
    return $file && flock($file, LOCK_EX) ? $file : false;
}
