<?php
$is_over = $outcome == 'refused' || $outcome == 'late';
$moved_to = $ways['leaves'] && $ways['origins'] ? $ways['origins'][0] : '';
$waits = $outcome == 'applying' || $outcome == 'trial' || $outcome == 'missing';
$on_trial = $waits && $trial['seconds'] > 0;
$new_address = $trial['to'] == '' || same_value($trial['from'], $trial['to']) || $stored_only || $outcome == 'undoing' ? ''
    : origin_of($trial['to'], '') . '/';
$signs_in_again = $trial['kind'] != 'ipv4' || !$questions || $questions[0]['key'] == '';
?>
<section class="card" aria-label="The change"<?php if ($polls) { ?> data-poll="1000" data-parts="outcome steps hint wishes values way"<?php } ?>>
<div id="outcome" role="status" data-when-answering<?php if (is_settled($trial)) echo ' data-over'; ?>>
  <p class="outcome"><?php echo state(kind_of_outcome($outcome), $sentence); ?></p>
<?php if ($outcome == 'undone' && $trial['settled'] > 1) { ?>
  <p class="hint" data-local-time="<?php echo (int) $trial['settled']; ?>" hidden></p>
<?php } ?>
<?php if ($is_over) { ?>
<?php if ($trial['lines']) { ?>
  <h2>What the trace log says about it</h2>
  <pre class="log" tabindex="0" role="region" aria-label="Lines of the trace log"><?php echo h(implode("\n", $trial['lines'])); ?></pre>
<?php } else { ?>
  <p>The trace log does not say why. <a href="diagnostics.php">See all of it under Diagnostics</a>.</p>
<?php } ?>
<?php } ?>
</div>
<div id="steps" data-when-answering>
<ol class="steps" aria-label="Steps">
<?php foreach (steps_of($trial, $outcome) as $step => $state) { ?>
  <li><?php echo state($state, $step); ?></li>
<?php } ?>
</ol>
</div>
<?php if ($on_trial) { ?>
<div class="countdown">
  <p>The settings of before come back in <strong role="timer" aria-live="off" data-countdown="<?php echo (int) $left; ?>"><?php
    echo (int) $left; ?></strong> seconds unless <?php echo h($unless); ?>.</p>
  <progress max="<?php echo (int) $trial['seconds']; ?>" value="<?php echo (int) $left; ?>" aria-label="Time that is left"><?php
    echo (int) $left; ?> s</progress>
</div>
<?php } elseif ($waits) { ?>
<progress aria-label="The appliance is at work"></progress>
<?php } ?>
<div role="status">
<div class="message caution" data-when-lost="Waiting" hidden><?php echo icon('caution'); ?><div>
  <p>The appliance does not answer at this address at the moment.<?php if ($on_trial) { ?> You need do nothing: it answers here again
  <span data-back-at>when the time is over</span>. Leave this page open: it shows when the settings of before are back.<?php } ?></p>
<?php if ($moved_to != '' && ($trial['to'] != '' || $outcome == 'undoing') && $network == '') { ?>
  <p>If the page does not go on by itself, open <a href="<?php echo h($moved_to); ?>/applying.php"><?php echo h($moved_to); ?>/</a>
  and sign in there<?php if ($on_trial) echo ' as ', h($trial['user']), ' to keep the change'; ?>.</p>
<?php } elseif ($new_address != '') { ?>
  <p>To <?php echo $on_trial ? 'keep the change' : 'reach it'; ?>, <?php
    if ($network != '') { ?>give this computer an address of <?php echo h($network); ?>, <?php } ?>open
  <a href="<?php echo h($new_address); ?>"><?php echo h($new_address); ?></a> and sign in as <?php echo h($trial['user']); ?>.</p>
<?php } elseif ($trial['kind'] == 'ipv4' && $trial['to'] == '' && $outcome != 'undoing') { ?>
  <p>It may have another one now: the DHCP server, or the network's router, knows which. Open it there and sign in as <?php
    echo h($trial['user']); ?> to keep the change.</p>
<?php } elseif (!$on_trial) { ?>
  <p>If it does not come back, open it under another of its addresses.</p>
<?php } ?>
</div></div>
</div>
<div id="hint" data-when-answering><?php if ($needs_wish) { ?>
<p class="note">This page came by an address that the change leaves alone, which proves nothing about the new settings. <?php
  echo may_change($GLOBALS['session']) ? 'Press "Keep" when you know that they are right.' : ''; ?></p>
<?php } ?></div>
<div id="wishes" data-when-answering>
<?php echo render('wishes', array('trial' => $trial, 'back' => $waits || $outcome == 'undoing' ? '' : links_back($trial, $kind,
    $outcome))); ?>
</div>
<?php if ($no_name_servers) echo message('caution', '<p>The name servers came from the DHCP server and are gone: names are no longer'
    . ' resolved. <a href="dns.php">Set name servers under DNS</a>.</p>'); ?>
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
<div id="way"><?php foreach (is_settled($trial) ? array() : $questions as $question) { ?><span hidden data-origin="<?php
  echo h($question['origin']); ?>" data-probe="<?php echo h($trial['probe']); ?>" data-answer="<?php
  echo h($question['answer']); ?>" data-key="<?php echo h($question['key']); ?>" data-leaves="<?php
  echo $ways['leaves'] ? '1' : ''; ?>" data-known="<?php echo empty($ways['known']) ? '' : '1'; ?>"></span><?php } ?></div>
<?php if ($moved_to != '' && $waits) { ?>
<div class="message note" data-when-answering><?php echo icon('note'); ?><div>
  <p>This page loses its connection when the address changes. <?php echo is_https()
      ? 'Then open the new one yourself, as your browser asks about its certificate, and sign in:' : 'It goes on by itself to'; ?>
    <a href="<?php echo h($moved_to); ?>/applying.php"><?php echo h($moved_to); ?>/</a><?php
    echo $signs_in_again && !is_https() ? ', where you sign in again' : ''; ?>.</p>
  <noscript><p><?php echo $trial['goes_alone'] ? 'Your browser runs no scripts, so you sign in there again.'
      : 'Your browser runs no scripts, and another device may have that address: open it yourself after some seconds, and sign in'
      . ' only if these pages answer.'; ?></p></noscript>
<?php if ($on_trial) { ?>
  <p>If nobody reaches it there, this address answers again when the time is over.</p>
<?php } ?>
</div></div>
<?php } elseif ($waits && $new_address != '' && !same_value(address_of_request(), $trial['to'])) { ?>
<p data-when-answering>From the network, the appliance is then at <a href="<?php echo h($new_address); ?>"><?php
  echo h($new_address); ?></a>.</p>
<?php } ?>
</section>
