<?php
// Scripts keep the log up to date unless that is stopped; without scripts it has to be asked for.
$polls = $live == '0' ? '' : ' data-poll="2000" data-parts="log"';
$same_filter = 'filter=' . urlencode($filter);
?>
<section class="card" aria-labelledby="trace"<?php echo $polls; ?>>
  <h2 id="trace">Trace log</h2>
  <form method="get" action="diagnostics.php" class="filter" role="search">
    <div class="field"><label for="filter">Only lines with</label>
    <input type="search" id="filter" name="filter" value="<?php echo h($filter); ?>" autocomplete="off" spellcheck="false"></div>
    <?php if ($live != 'scripts') { ?><input type="hidden" name="live" value="<?php echo h($live); ?>"><?php } ?>
    <button type="submit">Filter</button>
    <?php if ($live == '0') { ?>
      <a class="button" href="diagnostics.php?live=1&amp;<?php echo h($same_filter); ?>">Follow</a>
    <?php } else { ?>
      <?php if ($live != '1') { ?><noscript><a class="button" href="diagnostics.php?live=1&amp;<?php
        echo h($same_filter); ?>">Follow</a></noscript><?php } ?>
      <a class="button<?php if ($live != '1') echo ' scripted'; ?>" href="diagnostics.php?live=0&amp;<?php
        echo h($same_filter); ?>">Stop following</a>
    <?php } ?>
  </form>
  <div role="status"><p class="message caution" data-when-lost hidden><?php echo icon('caution'); ?><span>The appliance does not
    answer at this address at the moment: what you see is not the newest.</span></p></div>
  <div id="log">
<?php if ($lines === false) { ?>
  <?php echo message('caution', '<p>The trace log cannot be read; there may be none yet.</p>'); ?>
<?php } elseif (!$lines) { ?>
  <p class="empty"><?php echo $filter == '' ? 'The trace log is empty.' : 'No line has this text.'; ?></p>
<?php } else { ?>
  <pre class="log long" tabindex="0" role="region" aria-label="End of the trace log"><?php echo h(implode("\n", $lines)); ?></pre>
<?php } ?>
  </div>
</section>

<section class="card" aria-labelledby="audit">
  <h2 id="audit">Audit trail</h2>
  <p class="hint">Changes of web security, SNMP and trap receivers, the newest first.</p>
<?php if ($audit === false) { ?>
  <?php echo message('bad', '<p>The audit trail cannot be read.</p>'); ?>
<?php } elseif (!$audit) { ?>
  <p class="empty">Nothing was changed yet.</p>
<?php } else { ?>
  <table class="stacks">
    <thead><tr><th scope="col">Time (UTC)</th><th scope="col">User</th><th scope="col">Change</th><th scope="col">Result</th></tr></thead>
    <tbody>
<?php foreach ($audit as $entry) { ?>
    <tr>
      <th scope="row" class="time"><?php echo h(substr(strtr($entry['time'], 'T', ' '), 0, 19)); ?></th>
      <td class="user" data-label="User"><?php echo h($entry['user'] == '' ? 'Not known' : $entry['user']); ?></td>
      <td data-label="Change"><div><p><?php echo h($entry['operation']); ?></p><p class="hint"><?php
        echo h($entry['values']); ?></p></div></td>
      <td data-label="Result"><div><?php echo audit_result($entry['result']); ?></div></td>
    </tr>
<?php } ?>
    </tbody>
  </table>
<?php } ?>
<?php if ($own_audit) { ?>
  <h3>Changes on trial</h3>
  <table class="stacks">
    <thead><tr><th scope="col">Time (UTC)</th><th scope="col">User</th><th scope="col">From</th><th scope="col">What</th></tr></thead>
    <tbody>
<?php foreach ($own_audit as $entry) { ?>
    <tr>
      <th scope="row" class="time"><?php echo h(gmdate('Y-m-d H:i:s', $entry['time'])); ?></th>
      <td class="user" data-label="User"><?php echo h($entry['user']); ?></td>
      <td data-label="From"><?php echo h($entry['client'] == '' ? 'the appliance' : $entry['client']); ?></td>
      <td data-label="What"><div><p><?php echo h($entry['operation']); ?></p><p class="hint"><?php
        echo h($entry['details']); ?></p></div></td>
    </tr>
<?php } ?>
    </tbody>
  </table>
<?php } ?>
</section>
