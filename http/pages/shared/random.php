<?php
// Random numbers that nobody can guess, from the kernel.

function random_bytes_of_kernel($count)
{
    $random = fopen('/dev/urandom', 'rb');
    $bytes = $random ? fread($random, $count) : '';
    if (strlen($bytes) != $count) {
        give_up('There are no random numbers from /dev/urandom.');
    }
    fclose($random);
    return $bytes;
}

function random_hex($bytes)
{
    return bin2hex(random_bytes_of_kernel($bytes));
}

// 80 random bits in characters that are hard to mistake for one another.
function random_password()
{
    $alphabet = 'abcdefghijkmnpqrstuvwxyz23456789';
    $password = '';
    $bytes = random_bytes_of_kernel(16);
    for ($i = 0; $i < 16; $i++) {
        $password .= ($i > 0 && $i % 4 == 0 ? '-' : '') . $alphabet[ord($bytes[$i]) % 32];
    }
    return $password;
}
