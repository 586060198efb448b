<?php echo message('bad', '<p>' . h($text) . '</p>'); ?>
<p><a href="index.php">To the overview</a></p>
