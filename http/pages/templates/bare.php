<?php
// The frame around what is seen before signing in.
$name = php_uname('n'); // who is not signed in has the module do nothing;
?>
<!DOCTYPE html>
<html lang="en">
<head>
<?php echo render('head', array('title' => $title . ' · ' . $name)); ?>
</head>
<body class="bare">
<main id="content">
  <p class="brand"><?php echo icon('appliance'); ?><span>Network settings</span></p>
  <h1><?php echo h($name); ?></h1>
<?php foreach ($GLOBALS['failures'] as $failure) echo failure_message($failure); ?>
<?php echo $content; ?>
</main>
</body>
</html>
