<?php
// The buttons for keeping and undoing the change, for who may press them, and $back, a link beside them.
$back = isset($back) ? $back : '';
$wishes = array();
if (may_change($GLOBALS['session']) && $trial['seconds'] > 0) {
    if ($trial['state'] == 'trial') {
        $wishes['keep'] = 'Keep';
    }
    if ($trial['state'] == 'applying' || $trial['state'] == 'trial' || can_undo_kept($trial)) {
        $wishes['undo'] = 'Undo now';
    }
}
?>
<?php if ($wishes) { ?>
<form method="post" action="applying.php" class="wishes"><?php echo token_field(); ?>
  <input type="hidden" name="id" value="<?php echo h($trial['id']); ?>">
  <input type="hidden" name="seen" value="<?php echo h($trial['state']); ?>">
  <p class="actions"><?php foreach ($wishes as $wish => $label) { ?><button type="submit" name="change" value="<?php
    echo $wish; ?>"<?php if ($wish == 'keep') echo ' class="primary"'; ?>><?php echo h($label); ?></button> <?php } echo $back; ?></p>
</form>
<?php } elseif ($back != '') { ?>
<p class="actions"><?php echo $back; ?></p>
<?php } ?>
