<?php
$outcome = outcome_in_words(kind_of_result($entry['result']));
$reason = reason_of($entry);
$values = differences($entry);
?>
    <tr>
      <th scope="row" class="time"><span><?php echo gmdate('Y-m-d', (int) $entry['time']); ?></span>
        <span><?php echo gmdate('H:i:s', (int) $entry['time']); ?></span></th>
      <td class="user" data-label="Who"><div><p><?php echo h($entry['user'] == '' ? ($entry['client'] == '' ? 'The appliance' : 'Not known')
        : $entry['user']); ?></p><?php if ($entry['client'] != '') { ?><p class="hint"><?php echo h($entry['client']); ?></p><?php } ?></div></td>
      <td data-label="What"><div><p><?php echo h($entry['what']); ?><?php if ($entry['count'] > 1) { ?> <strong><?php
        echo (int) $entry['count']; ?> times</strong> since <?php echo gmdate('Y-m-d H:i:s', (int) $entry['began']); ?>.<?php } ?></p>
<?php if ($values) { ?>
        <p class="hint"><?php echo h(implode(', ', $values)); ?></p>
<?php } ?>
<?php if ($entry['operations']) { ?>
        <details class="fold"><summary>Details</summary>
          <ul class="operations">
<?php foreach ($entry['operations'] as $operation) { ?>
            <li><?php echo h(services_in_words($operation)); ?> <code><?php echo h($operation['operation'] . ' ' . $operation['values']);
              ?></code> <?php echo h($operation['result']); ?>, <?php echo h(substr($operation['time'], 11, 12)); ?></li>
<?php } ?>
          </ul></details>
<?php } ?></div></td>
      <td data-label="Outcome"><div><?php echo state($outcome[0], $outcome[1]); ?><?php if ($reason != '') { ?><p class="hint"><?php
        echo h($reason); ?></p><?php } ?></div></td>
    </tr>
