<?php
// Scripts keep the log up to date unless that is stopped; without scripts it has to be asked for.
$polls = $live == '0' ? '' : ' data-poll="2000" data-parts="log"';
$same = 'filter=' . urlencode($filter) . ($only_errors ? '&errors=1' : '');
$is_open = $filter != '' || $only_errors || $live != 'scripts';
?>
<section class="card" aria-labelledby="trace"<?php echo $polls; ?>>
<details class="fold whole"<?php if ($is_open) echo ' open'; ?>>
  <summary><h2 id="trace">Trace log</h2><span class="hint">What the module did, for engineers</span></summary>
  <form method="get" action="diagnostics.php#trace" class="filter" role="search">
    <div class="field"><label for="filter">Only lines with</label>
    <input type="search" id="filter" name="filter" value="<?php echo h($filter); ?>" autocomplete="off" spellcheck="false"></div>
    <div class="mark"><input type="checkbox" id="errors" name="errors" value="1"<?php if ($only_errors) echo ' checked'; ?>>
      <div><label for="errors">Errors only</label></div></div>
    <?php if ($live != 'scripts') { ?><input type="hidden" name="live" value="<?php echo h($live); ?>"><?php } ?>
    <button type="submit">Filter</button>
    <?php if ($live == '0') { ?>
      <a class="button" href="diagnostics.php?live=1&amp;<?php echo h($same); ?>#trace">Follow</a>
    <?php } else { ?>
      <?php if ($live != '1') { ?><noscript><a class="button" href="diagnostics.php?live=1&amp;<?php
        echo h($same); ?>#trace">Follow</a></noscript><?php } ?>
      <a class="button<?php if ($live != '1') echo ' scripted'; ?>" href="diagnostics.php?live=0&amp;<?php
        echo h($same); ?>#trace">Stop following</a>
    <?php } ?>
    <a href="trace.php">Download</a>
  </form>
  <div role="status"><p class="message caution" data-when-lost hidden><?php echo icon('caution'); ?><span>The appliance does not
    answer at this address at the moment: what you see is not the newest.</span></p></div>
  <div id="log">
<?php if ($lines === false) { ?>
  <?php echo message('caution', '<p>The trace log cannot be read; there may be none yet.</p>'); ?>
<?php } elseif (!$lines) { ?>
  <p class="empty"><?php echo $filter == '' ? 'The trace log is empty.' : 'No line has this text.'; ?></p>
<?php } elseif ($filter != '') { ?>
  <pre class="log long" tabindex="0" role="region" aria-label="End of the trace log"><?php echo h(implode("\n", $lines)); ?></pre>
<?php } elseif (!$calls) { ?>
  <p class="empty">No call says that it has failed. Not all do: what could not be read is said on its page.</p>
<?php } else { ?>
  <p class="hint">The newest <?php echo count($calls) == 1 ? 'call' : count($calls) . ' calls'; ?>, the newest first.</p>
  <div class="calls" tabindex="0" role="group" aria-label="Calls of the module">
<?php foreach ($calls as $call) { ?>
    <details class="fold" data-call="<?php echo h($call['key']); ?>">
      <summary><span class="address"><?php echo h($call['name']); ?></span>
      <span class="hint"><?php echo h($call['time']); ?>, <?php echo count($call['lines']) == 1 ? '1 line' : count($call['lines']) . ' lines'; ?><?php
      if (!$call['left']) echo ', not ended'; ?></span><?php if ($call['failed']) echo ' ' . state('bad', 'Failed'); ?></summary>
      <pre class="log"><?php echo h(implode("\n", $call['lines'])); ?></pre></details>
<?php } ?>
  </div>
<?php } ?>
  </div>
</details>
</section>
