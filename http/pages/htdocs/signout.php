<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';

// No matter what the user may change: signing out is for everybody.
if (text_of($_COOKIE, cookie_name()) != '') {
    open_session();
    if (is_post() && has_token()) {
        end_session();
    }
}
go_to('signin.php');
