<nav aria-label="Settings">
  <ul>
<?php foreach ($GLOBALS['pages'] as $page => $title) { ?>
    <li><a href="<?php echo h($page); ?>"<?php if ($page == $current) echo ' aria-current="page"'; ?>><?php
      echo icon($page), h($title); ?></a></li>
<?php } ?>
  </ul>
</nav>
<div class="account">
  <p><?php echo h($GLOBALS['session']->user); ?> <span class="role"><?php
    echo may_change($GLOBALS['session']) ? 'may change settings' : 'read only'; ?></span></p>
  <form method="post" action="signout.php"><?php echo token_field(); ?>
    <button type="submit" class="quiet"><?php echo icon('sign-out'); ?>Sign out</button></form>
</div>
