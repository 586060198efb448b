<?php
$kinds_of_state = array('waiting' => 'wait', 'applied' => 'good', 'failed' => 'bad', 'late' => 'caution');
$is_over = $outcome == 'failed' || $outcome == 'late';
$new_address = $change['to'] == '' || same_value($change['from'], $change['to']) || $stored_only ? ''
    : origin_of($change['to'], '') . '/';
$attributes = $polls ? ' data-poll="1000" data-parts="outcome values" data-expected="' . (int) $kind['usual_seconds']
    . '" data-other-origin="' . h($moved_to) . '"' : '';
?>
<section class="card" aria-label="The change"<?php echo $attributes; ?>>
<div id="outcome" role="status">
  <p class="outcome"><?php echo state($kinds_of_state[$outcome], $sentence); ?></p>
<?php if ($is_over) { ?>
<?php if ($lines) { ?>
  <h2>What the trace log says about it</h2>
  <pre class="log" tabindex="0" aria-label="Lines of the trace log"><?php echo h(implode("\n", $lines)); ?></pre>
<?php } else { ?>
  <p>The trace log does not say why. <a href="diagnostics.php">See all of it under Diagnostics</a>.</p>
<?php } ?>
<?php } ?>
<?php if ($outcome != 'waiting') { ?>
  <p class="actions"><a class="button" href="<?php echo h($kind['page']); ?>"><?php
    echo $is_over ? 'Back, to try again' : 'Back to the settings'; ?></a></p>
<?php } ?>
</div>
<?php if ($outcome == 'waiting') { ?>
<progress max="100" value="<?php echo (int) $percent; ?>" aria-label="Expected time"><?php echo (int) $percent; ?> %</progress>
<?php } ?>
<div id="values">
<table class="stacks">
  <thead><tr><th scope="col">Setting</th><th scope="col">Wanted</th><th scope="col">Now</th><th scope="col">State</th></tr></thead>
  <tbody>
<?php foreach ($rows as $row) { ?>
  <tr>
    <th scope="row"><?php echo h($row['label']); ?></th>
    <td data-label="Wanted"><?php echo h($row['wanted']); ?></td>
    <td data-label="Now"><?php echo h($row['now']); ?></td>
    <td data-label="State"><?php echo row_state($row, $outcome); ?></td>
  </tr>
<?php } ?>
  </tbody>
</table>
</div>
<?php if ($moved_to != '' && $outcome == 'waiting') { ?>
<div class="message note"><?php echo icon('note'); ?><div>
  <p>This page loses its connection when the address changes. <?php echo is_https()
      ? 'Then open the new one yourself, as your browser asks about its certificate:' : 'It goes on by itself to'; ?>
    <a href="<?php echo h($moved_to); ?>/applying.php"><?php echo h($moved_to); ?>/</a>, where you sign in again.</p>
  <p>If that address does not answer, the change has failed: come back to this one.</p>
</div></div>
<?php } ?>
<?php if ($outcome == 'waiting' && $new_address != '' && $moved_to == '') { ?>
<p>From the network, the appliance is then at <a href="<?php echo h($new_address); ?>"><?php echo h($new_address); ?></a>.</p>
<?php } ?>
<div role="status">
<p class="message caution" data-when-lost hidden><?php echo icon('caution'); ?><span>The appliance does not answer at this address
  at the moment. <?php if ($moved_to != '') { ?>If the page does not go on by itself, open
  <a href="<?php echo h($moved_to); ?>/applying.php"><?php echo h($moved_to); ?>/</a>.<?php
  } elseif ($new_address != '') { ?>From the network it is at <a href="<?php echo h($new_address); ?>"><?php
  echo h($new_address); ?></a> when the change is done.<?php
  } elseif ($change['values']['mode'] == 'DHCP') { ?>If it does not come back, it has another one now: the DHCP server, or the
  network's router, knows which.<?php
  } elseif ($change['values']['mode'] == 'Off') { ?>If it does not come back, open it under another of its
  addresses.<?php } ?></span></p>
</div>
</section>
