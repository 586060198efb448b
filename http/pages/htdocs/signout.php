<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';

// No matter what the user may change: signing out is for everybody.
if (open_session() && is_post() && has_token()) {
    write_audit($_SESSION['user'], text_of($_SERVER, 'REMOTE_ADDR'), 'Signed out.', '', 'sign-in');
    end_session();
}
go_to('signin.php');
