<?php
// Forms and their fields, as markup. $errors: name of a field => what is wrong with it. A value that is null is not known: who may
// only look is told so, and who may change it gets a field without a choice, that says so.

define('UNKNOWN_NOW', 'What is set now cannot be read.');

function token_field()
{
    return '<input type="hidden" name="token" value="' . h($_SESSION['token']) . '">';
}

$only_shown = false; // whether fields are values that can only be read
$said_why_only_shown = false;

// Begins a form for one kind of change. Who may not change anything sees the values of its fields as text, and no form.
function form_begin($page, $change)
{
    if (!may_change($GLOBALS['session'])) {
        $GLOBALS['only_shown'] = true;
        return '<div class="form only-shown">';
    }
    $name = preg_replace('/#.*/', '', $page); // what is typed again comes by the page's name
    $again = fill_again($name, $change);
    return '<form method="post" action="' . h($page) . '"' . ($again ? ' data-unsaved' : '') . '><fieldset class="form">'
        . token_field() . proof_field($name) . '<input type="hidden" name="change" value="' . h($change) . '">';
}

// Ends the form with its button; $beside: markup in front of that. Who may not change anything is told so in its place.
function form_end($label, $beside = '')
{
    if ($GLOBALS['only_shown']) {
        $GLOBALS['only_shown'] = false;
        return '</div>' . why_only_shown();
    }
    fill_no_more();
    return '</fieldset>' . $beside . '<p class="actions"><button type="submit" class="primary">' . h($label)
        . '</button></p></form>';
}

// Once on a page, at its first form.
function why_only_shown()
{
    $is_said = $GLOBALS['said_why_only_shown'];
    $GLOBALS['said_why_only_shown'] = true;
    return $is_said ? '' : '<p class="hint">You may look at the settings; changing them needs the role admin.</p>';
}

// What stands in the place of a field.
function shown_value($label, $value, $hint = '')
{
    return '<div class="shown"><p>' . h($label) . '</p><p class="value">'
        . ($value === null ? unknown() : ($value === '' ? 'None' : h($value))) . '</p>'
        . ($hint == '' ? '' : '<p class="hint">' . h($hint) . '</p>') . '</div>';
}

// Likewise for what everybody may change of their own.
function own_form_begin($page, $change)
{
    return '<form method="post" action="' . h($page) . '"><fieldset class="form">' . token_field()
        . '<input type="hidden" name="change" value="' . h($change) . '">';
}

function own_form_end($label, $kind = 'primary')
{
    return '</fieldset><p class="actions"><button type="submit" class="' . $kind . '">' . h($label) . '</button></p></form>';
}

// For the browser's store of passwords, which otherwise takes another field for the name.
function user_name_field($name)
{
    return '<input type="text" name="user" value="' . h($name) . '" autocomplete="username" readonly hidden>';
}

// Attributes that tie a field to its hint and its error, for those who cannot see that they stand beside it.
function described_by($name, $hint, $error)
{
    $ids = trim(($hint == '' ? '' : $name . '-hint') . ' ' . ($error == '' ? '' : $name . '-error'));
    return ($ids == '' ? '' : ' aria-describedby="' . $ids . '"') . ($error == '' ? '' : ' aria-invalid="true"');
}

// What stands below a field, and before all that what is to be known of a value that is none.
function hint_on($value, $hint)
{
    return $value === null ? trim(UNKNOWN_NOW . ' ' . $hint) : $hint;
}

// The hint and the error of a field, under the identifiers that described_by() names.
function field_notes($name, $hint, $error)
{
    return ($hint == '' ? '' : '<p class="hint" id="' . $name . '-hint">' . h($hint) . '</p>')
        . ($error == '' ? '' : '<p class="error" id="' . $name . '-error">' . icon('bad') . h($error) . '</p>');
}

// A field of one line. $more is further attributes, as markup.
function text_field($name, $label, $value, $errors, $hint = '', $more = '')
{
    if ($GLOBALS['only_shown']) {
        return shown_value($label, $value);
    }
    $error = isset($errors[$name]) ? $errors[$name] : '';
    $hint = hint_on($value, $hint);
    $value = typed_again($name, $value);
    return '<div class="field' . ($error == '' ? '' : ' wrong') . '"><label for="' . $name . '">' . h($label) . '</label>'
        . '<input type="text" id="' . $name . '" name="' . $name . '" value="' . h($value) . '"'
        . described_by($name, $hint, $error)
        . ' autocomplete="off" autocapitalize="none" spellcheck="false" ' . $more . '>'
        . field_notes($name, $hint, $error) . '</div>';
}

// One of several. $choices: value => array of 'label' and 'hint'.
function choice_field($name, $legend, $choices, $value, $errors = array())
{
    if ($GLOBALS['only_shown']) {
        return $value !== null && isset($choices[$value]) ? shown_value($legend, $choices[$value]['label'], $choices[$value]['hint'])
            : shown_value($legend, null);
    }
    $error = isset($errors[$name]) ? $errors[$name] : '';
    $html = '<fieldset class="field"' . described_by($name, hint_on($value, ''), $error) . '><legend>' . h($legend) . '</legend>';
    foreach ($choices as $choice => $texts) {
        $html .= mark_field('radio', $name, $name . '-' . $choice, $choice, $texts['label'], $texts['hint'],
            (string) $choice == (string) typed_again($name, $value));
    }
    return $html . field_notes($name, hint_on($value, ''), $error) . '</fieldset>';
}

function on_or_off($value)
{
    return $value === null ? null : ($value ? 'On' : 'Off');
}

// Yes or no.
function check_field($name, $label, $checked, $hint = '')
{
    if ($GLOBALS['only_shown']) {
        return shown_value($label, on_or_off($checked), $hint);
    }
    return mark_field('checkbox', $name, $name, '1', $label, hint_on($checked, $hint), typed_again($name, $checked ? '1' : '', '') == '1');
}

// Yes or no, where nothing is sent only while the field is inactive: "no" is sent, too.
function answer_field($name, $label, $checked, $hint = '', $errors = array())
{
    if ($GLOBALS['only_shown']) {
        return shown_value($label, on_or_off($checked), $hint);
    }
    return '<input type="hidden" name="' . $name . '" value="">' . mark_field('checkbox', $name, $name, '1', $label,
        hint_on($checked, $hint), typed_again($name, $checked ? '1' : '') == '1', isset($errors[$name]) ? $errors[$name] : '');
}

// A radio button or a check box, with its label behind it.
function mark_field($type, $name, $id, $value, $label, $hint, $checked, $error = '')
{
    return '<div class="mark"><input type="' . $type . '" id="' . $id . '" name="' . $name . '" value="' . h($value) . '"'
        . ($checked ? ' checked' : '') . described_by($id, $hint, $error) . '><div><label for="' . $id . '">' . h($label)
        . '</label>' . field_notes($id, $hint, $error) . '</div></div>';
}

// A password is never shown again, and never filled in by the server.
function password_field($name, $label, $errors, $autocomplete, $hint = '', $more = '')
{
    $error = isset($errors[$name]) ? $errors[$name] : '';
    return '<div class="field' . ($error == '' ? '' : ' wrong') . '"><label for="' . $name . '">' . h($label) . '</label>'
        . '<input type="password" id="' . $name . '" name="' . $name . '" autocomplete="' . $autocomplete . '" required'
        . described_by($name, $hint, $error) . ' ' . $more . '>' . field_notes($name, $hint, $error) . '</div>';
}
