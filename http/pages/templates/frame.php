<?php
// The frame around every page of a signed-in user.
$page = basename(text_of($_SERVER, 'SCRIPT_NAME'));
$name = name_in_frame();
$message = '';
$audit_failed = false;
if (!is_background()) {
    $message = text_of($_SESSION, 'message');
    $audit_failed = $GLOBALS['audit_failed'] || !empty($_SESSION['audit_failed']);
    unset($_SESSION['message'], $_SESSION['audit_failed']);
}
$news = is_background() || !isset($GLOBALS['session']) || $page == 'applying.php' ? false : news_of_trial($GLOBALS['session']);
$trial = read_trial();
// The page of a restart says it itself.
$on_trial = $trial && $trial['seconds'] > 0 && is_active($trial) && $page != 'applying.php' && !isset($restarts) ? $trial : false;
$wrong = failed() || !empty($errors);
$current = isset($part_of) ? $part_of : $page;
$left = seconds_of_session();
?>
<!DOCTYPE html>
<html lang="en">
<head>
<?php echo render('head', array('title' => ($wrong ? 'Error: ' : '') . $title . ' · ' . $name)); ?>
<?php if (isset($refresh)) { ?>
<noscript><meta http-equiv="refresh" content="<?php echo (int) $refresh['seconds']; ?>; url=<?php
  echo h($refresh['address']); ?>"></noscript>
<?php } ?>
</head>
<body data-session="<?php echo $left['idle'], ' ', $left['at_most']; ?>" data-session-warning="<?php echo WARNING_SECONDS; ?>">
<a class="skip" href="#content">Skip to the content</a>
<div class="layout">
<header class="bar">
  <p class="brand"><?php echo icon('appliance'); ?><span><?php echo h($name); ?></span></p>
  <details class="menu">
    <summary><?php echo icon('menu'); ?>Menu</summary>
    <?php echo render('menu', array('current' => $current)); ?>
  </details>
</header>
<header class="side"><div>
  <p class="brand"><?php echo icon('appliance'); ?><span><?php echo h($name); ?></span></p>
  <?php echo render('menu', array('current' => $current)); ?>
</div></header>
<main id="content" tabindex="-1">
  <div class="title">
    <h1><?php echo h($title); ?></h1>
    <?php if (isset($lead)) { ?><p class="lead"><?php echo h($lead); ?></p><?php } ?>
  </div>
  <div id="messages" role="status"<?php if ($wrong || $message != '') echo ' tabindex="-1" data-focus'; ?>>
    <?php if ($message != '') echo message('good', '<p>' . h($message) . '</p>'); ?>
    <?php if ($audit_failed) echo message('caution', '<p>What was done could not be written into the audit.</p>'); ?>
    <?php if ($news) echo message($news['kind'] == 'good' ? 'good' : 'caution', '<p>' . h($news['sentence'])
        . ' <a href="applying.php">Show the change</a></p>'); ?>
    <?php if ($on_trial) { ?>
    <div class="message note"><?php echo icon('wait'); ?><div>
      <p><?php echo h($GLOBALS['kinds_of_change'][$on_trial['kind']]['name']); ?>: a change by <?php echo h($on_trial['user']); ?> is on
        trial for <?php echo (int) seconds_left($on_trial); ?> more seconds. <a href="applying.php">Show the change</a></p>
      <?php echo render('wishes', array('trial' => $on_trial)); ?>
    </div></div>
    <?php } ?>
    <?php if (!empty($errors)) { ?>
      <?php echo message('bad', '<p><strong>Nothing was changed.</strong> Correct what is marked and save again.</p>'
          . failure_details(failures_of_change())); ?>
    <?php } ?>
    <?php echo failure_messages(!empty($errors)); ?>
  </div>
<?php echo $content; ?>
</main>
</div>
<div id="session" role="status"></div>
</body>
</html>
