<?php
// The frame around what is seen before signing in.
$name = name_in_frame();
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
<?php echo failure_messages(false); ?>
<?php echo $content; ?>
</main>
</body>
</html>
