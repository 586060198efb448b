<?php
// Pieces of markup. Everything that is not markup goes through h().

define('ESCAPING', defined('ENT_SUBSTITUTE') ? ENT_QUOTES | ENT_SUBSTITUTE : ENT_QUOTES);

function h($text)
{
    return htmlspecialchars((string) $text, ESCAPING, 'UTF-8');
}

// The address of a file beside the pages, which is another one when the file has changed: browsers keep what they have
// got once, and need not ask for it while the web server restarts.
function asset($name)
{
    return $name . '?' . filemtime(dirname(text_of($_SERVER, 'SCRIPT_FILENAME')) . '/' . $name);
}

// A drawing of 24 by 24, for the eye only: a word always stands beside it.
function icon($name)
{
    $sheet = 'M6 3h8l4 4v14H6zM14 3v4h4'; // for pages that have no drawing of their own
    $drawings = array(
        'index.php' => 'M4 4h6v9H4zM14 4h6v5h-6zM14 13h6v7h-6zM4 17h6v3H4z',
        'ipv4.php' => 'M9 3h6v5H9zM3 16h6v5H3zM15 16h6v5h-6zM12 8v4M6 16v-4h12v4',
        'ipv6.php' => 'M12 3a9 9 0 1 0 0 18 9 9 0 1 0 0-18zM3 12h18M12 3c4 4 4 14 0 18M12 3c-4 4-4 14 0 18',
        'dns.php' => 'M12 2v3M12 11v2M12 19v3M5 5h11l3 3-3 3H5zM19 13H8l-3 3 3 3h11z',
        'port.php' => 'M4 4h16v16H4zM8 20v-6h8v6M8 8v2M12 8v2M16 8v2',
        'security.php' => 'M6 11h12v10H6zM8.5 11V7.5a3.5 3.5 0 0 1 7 0V11M12 15v2',
        'snmp.php' => 'M3 12h4l3-8 4 16 3-8h4',
        'traps.php' => 'M6 17v-6a6 6 0 0 1 12 0v6l2 2H4zM10 21.5h4',
        'backup.php' => 'M12 3v11M8 10l4 4 4-4M4 15v5h16v-5',
        'diagnostics.php' => 'M3 5h18v14H3zM7 9l3 3-3 3M12 15h5',
        'account.php' => 'M12 4a4 4 0 1 0 0 8 4 4 0 1 0 0-8zM4 20.5c0-4 3.5-6 8-6s8 2 8 6',
        'good' => 'M12 3a9 9 0 1 0 0 18 9 9 0 1 0 0-18zM8 12.5l3 3 5-6',
        'bad' => 'M12 3a9 9 0 1 0 0 18 9 9 0 1 0 0-18zM12 7v6M12 16.2v.6',
        'caution' => 'M12 4l9 16H3zM12 10v4.5M12 17v.6',
        'note' => 'M12 3a9 9 0 1 0 0 18 9 9 0 1 0 0-18zM12 11v6M12 7.2v.6',
        'off' => 'M12 3a9 9 0 1 0 0 18 9 9 0 1 0 0-18zM8 12h8',
        'set' => 'M12 3a9 9 0 1 0 0 18 9 9 0 1 0 0-18zM12 9.5a2.5 2.5 0 1 0 0 5 2.5 2.5 0 1 0 0-5z',
        'wait' => 'M12 3a9 9 0 1 0 0 18 9 9 0 1 0 0-18zM12 7v5l3 2',
        'menu' => 'M4 7h16M4 12h16M4 17h16',
        'sign-out' => 'M14 4H5v16h9M10 12h11M17 8l4 4-4 4',
        'appliance' => 'M4 4h16v16H4zM4 9.3h16M4 14.6h16M8 6.7h4M8 12h4M8 17.3h4'
    );
    return '<svg class="icon" viewBox="0 0 24 24" aria-hidden="true" focusable="false"><path d="'
        . (isset($drawings[$name]) ? $drawings[$name] : $sheet) . '"/></svg>';
}

// A state in a word, a drawing and a colour. $kind is 'good' for what works, 'set' for what is only set, 'bad', 'caution',
// 'off' or 'wait'.
function state($kind, $text)
{
    return '<span class="state ' . $kind . '">' . icon($kind) . h($text) . '</span>';
}

function on_off($on)
{
    return $on ? state('set', 'On') : state('off', 'Off');
}

// What could not be read.
function unknown()
{
    return state('caution', 'Unknown');
}

// A text, or that it is not known.
function text_or_unknown($text)
{
    return $text === '' || $text === false ? unknown() : h($text);
}

// A message of several sentences; $html is markup.
function message($kind, $html)
{
    return '<div class="message ' . $kind . '">' . icon($kind) . '<div>' . $html . '</div></div>';
}

// What the module reported, for one cause: in words, and folded what it said with its code.
function failure_message($failures)
{
    $messages = array();
    $advice = array();
    foreach ($failures as $failure) {
        $messages[$failure['message']] = h($failure['message']);
        $advice[$failure['advice']] = h($failure['advice']);
    }
    $title = count($messages) == 1 ? implode('', $messages) : 'Not everything could be read';
    $said = count($messages) == 1 && count($advice) == 1 ? implode('', $advice)
        : 'What is not known stands here as "Unknown". The trace log under Diagnostics shows what was tried.';
    return message('bad', '<p><strong>' . $title . '</strong></p><p>' . $said . '</p>' . failure_details($failures));
}

// Folded: each failure in the module's words, with its code and place.
function failure_details($failures)
{
    $details = array();
    foreach ($failures as $failure) {
        if ($failure['place'] != '') {
            $detail = h(rtrim($failure['message'], '.')) . ($failure['code'] == '' ? ': ' : '. Code ' . h($failure['code'])
                . ', reported at ') . h($failure['place']);
            $details[$detail] = $detail;
        }
    }
    return !$details ? '' : '<details class="details"><summary>Details</summary><p class="code">'
        . implode('</p><p class="code">', $details) . '</p></details>';
}
