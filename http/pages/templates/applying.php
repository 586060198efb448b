<?php
$is_over = $outcome == 'refused' || $outcome == 'late';
$moved_to = $ways['leaves'] && $ways['origins'] ? $ways['origins'][0] : '';
$waits = $outcome == 'applying' || $outcome == 'trial' || $outcome == 'missing';
$on_trial = $waits && $trial['seconds'] > 0;
$new_address = $trial['to'] == '' || same_value($trial['from'], $trial['to']) || $stored_only || $outcome == 'undoing' ? ''
    : origin_of($trial['to'], '') . '/';
?>
<section class="card" aria-label="The change"<?php if ($polls) { ?> data-poll="1000" data-parts="outcome steps wishes values way hint"<?php } ?>>
<div id="outcome" role="status" data-when-answering<?php if (is_settled($trial)) echo ' data-over'; ?>>
  <p class="outcome"><?php echo state(kind_of_outcome($outcome), $sentence); ?></p>
<?php if ($is_over) { ?>
<?php if ($trial['lines']) { ?>
  <h2>What the trace log says about it</h2>
  <pre class="log" tabindex="0" aria-label="Lines of the trace log"><?php echo h(implode("\n", $trial['lines'])); ?></pre>
<?php } else { ?>
  <p>The trace log does not say why. <a href="diagnostics.php">See all of it under Diagnostics</a>.</p>
<?php } ?>
<?php } ?>
</div>
<div id="steps">
<ol class="steps" aria-label="Steps">
<?php foreach (steps_of($trial, $outcome) as $step => $state) { ?>
  <li><?php echo state($state, $step); ?></li>
<?php } ?>
</ol>
</div>
<?php if ($on_trial) { ?>
<div class="countdown">
  <p>The settings of before come back in <strong role="timer" aria-live="off" data-countdown="<?php echo (int) $left; ?>"><?php
    echo (int) $left; ?></strong> seconds unless you are back.</p>
  <progress max="<?php echo (int) $trial['seconds']; ?>" value="<?php echo (int) $left; ?>" aria-label="Time that is left"><?php
    echo (int) $left; ?> s</progress>
</div>
<?php } elseif ($waits) { ?>
<progress aria-label="The appliance is at work"></progress>
<?php } ?>
<div role="status">
<p class="message caution" data-when-lost hidden><?php echo icon('caution'); ?><span>The appliance does not answer at this address
  at the moment. <?php if ($moved_to != '' && ($trial['to'] != '' || $outcome == 'undoing')) { ?>If the page does not go on by itself, open
  <a href="<?php echo h($moved_to); ?>/applying.php"><?php echo h($moved_to); ?>/</a> and sign in there.<?php
  } elseif ($new_address != '') { ?>From the network it is at <a href="<?php echo h($new_address); ?>"><?php
  echo h($new_address); ?></a> when the change is done.<?php
  } elseif ($trial['kind'] == 'ipv4' && $trial['to'] == '' && $outcome != 'undoing') { ?>It may have another one now: the DHCP server, or the
  network's router, knows which. Open it there and sign in to keep the change.<?php
  } else { ?>If it does not come back, open it under another of its addresses.<?php } ?><?php
  if ($on_trial) echo ' Leave this page open: it shows when the settings of before are back.'; ?></span></p>
</div>
<div id="wishes" data-when-answering>
<?php echo render('wishes', array('trial' => $trial, 'back' => $waits || $outcome == 'undoing' ? '' : '<a class="button" href="'
    . h($kind['page']) . '">' . ($is_over ? 'Back, to try again' : 'Back to the settings') . '</a>')); ?>
</div>
<div id="values" data-when-answering>
<table class="stacks">
  <thead><tr><th scope="col">Setting</th><th scope="col">Wanted</th><th scope="col">Now</th><th scope="col">State</th></tr></thead>
  <tbody>
<?php foreach ($rows as $row) { ?>
  <tr>
    <th scope="row"><?php echo h($row['label']); ?></th>
    <td data-label="Wanted"><?php echo h($row['wanted']); ?></td>
    <td data-label="Now"><?php echo h($row['now']); ?></td>
    <td data-label="State"><?php echo row_state($row, $outcome, $trial['undo_failed']); ?></td>
  </tr>
<?php } ?>
  </tbody>
</table>
</div>
<div id="way"><?php if (!is_settled($trial) && $ways['origins']) { ?><span hidden data-origins="<?php
  echo h(implode(' ', $ways['origins'])); ?>" data-probe="<?php echo h($trial['probe']); ?>" data-answer="<?php
  echo h(answer_to_probe($trial, $trial['probe'])); ?>" data-key="<?php echo h($key); ?>" data-leaves="<?php
  echo $ways['leaves'] ? '1' : ''; ?>" data-known="<?php echo $trial['to'] == '' && $trial['kind'] != 'ipv4' ? '1' : ''; ?>"></span><?php } ?></div>
<?php if ($moved_to != '' && $waits) { ?>
<div class="message note" data-when-answering><?php echo icon('note'); ?><div>
  <p>This page loses its connection when the address changes. <?php echo is_https()
      ? 'Then open the new one yourself, as your browser asks about its certificate, and sign in:' : 'It goes on by itself to'; ?>
    <a href="<?php echo h($moved_to); ?>/applying.php"><?php echo h($moved_to); ?>/</a><?php
    echo $key == '' && !is_https() ? ', where you sign in again' : ''; ?>.</p>
  <noscript><p><?php echo $trial['goes_alone'] ? 'Your browser runs no scripts, so you sign in there again.'
      : 'Your browser runs no scripts, and another device may have that address: open it yourself after some seconds, and sign in'
      . ' only if these pages answer.'; ?></p></noscript>
<?php if ($on_trial) { ?>
  <p>If nobody reaches it there, this address answers again when the time is over.</p>
<?php } ?>
</div></div>
<?php } ?>
<div id="hint"><?php if ($needs_wish) { ?>
<p class="note">This page came by an address that the change leaves alone, which proves nothing about the new settings. Reach the
appliance under them and sign in there, or press "Keep" when you know that they are right.</p>
<?php } ?></div>
<?php if ($waits && $new_address != '' && $moved_to == '') { ?>
<p>From the network, the appliance is then at <a href="<?php echo h($new_address); ?>"><?php echo h($new_address); ?></a>.</p>
<?php } ?>
</section>
