<?php echo message('bad', '<p>' . h($text) . '</p>'); ?>
<?php if (isset($_SESSION['typed'])) { ?>
<p><a href="<?php echo h($_SESSION['typed']['page']); ?>">Open the page again with what you typed</a></p>
<?php } ?>
<p><a href="index.php">To the overview</a></p>
