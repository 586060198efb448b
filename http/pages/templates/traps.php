<?php
$transports = array(1 => 'UDP', 2 => 'TCP');
$may_change = may_change($GLOBALS['session']);
if ($meanwhile) echo meanwhile_message($meanwhile);
?>
<?php if (has_facts()) { ?>
<section class="card" aria-labelledby="now">
  <h2 id="now">Now</h2>
  <p><?php echo agent_state(); ?></p>
<?php foreach (service_alarms() as $alarm) if ($alarm[3] == 'snmp.php') echo alarm_message($alarm); ?>
</section>
<?php } ?>
<section class="card" aria-labelledby="list">
  <h2 id="list">Receivers</h2>
<?php if (!$is_known) { ?>
  <p>Receivers: <?php echo unknown(); ?></p>
<?php } elseif (!$receivers) { ?>
  <p class="empty">There are none, so the agent's traps go nowhere.</p>
<?php } else { ?>
  <table class="stacks">
    <thead><tr><th scope="col">Address</th><th scope="col">Port</th><th scope="col">Transport</th>
      <?php if ($results) { ?><th scope="col">Test</th><?php } ?>
      <?php if ($may_change) { ?><th scope="col"><span class="unseen">Delete</span></th><?php } ?></tr></thead>
    <tbody>
<?php foreach ($receivers as $receiver) { ?>
    <tr>
      <th scope="row"><?php echo h($receiver->ip); ?></th>
      <td data-label="Port"><?php echo (int) $receiver->port; ?></td>
      <td data-label="Transport"><?php echo h(isset($transports[$receiver->transport]) ? $transports[$receiver->transport]
          : 'Number ' . $receiver->transport); ?></td>
<?php if ($results) { ?>
      <td data-label="Test"><div><?php $notation = receiver_in_notation($receiver);
        echo outcome_of_trap_in_words(isset($results[$notation]) ? $results[$notation] : ''); ?></div></td>
<?php } ?>
<?php if ($may_change) { ?>
      <td><details class="confirm"><summary>Delete<span class="unseen"> <?php echo h($receiver->ip); ?></span></summary></details></td>
    </tr>
    <tr class="question"><td colspan="<?php echo $results ? 5 : 4; ?>">
        <form method="post" action="traps.php"><?php echo token_field();
          echo seen_field(array($receiver->id => $seen[$receiver->id])); ?>
          <input type="hidden" name="change" value="delete">
          <input type="hidden" name="id" value="<?php echo h($receiver->id); ?>">
          <p>It will get no more traps.</p>
          <button type="submit" class="danger">Delete <?php echo h($receiver->ip); ?></button>
        </form></td>
<?php } ?>
    </tr>
<?php } ?>
    </tbody>
  </table>
<?php } ?>
<?php if ($is_known && $receivers && $may_change) { ?>
  <form method="post" action="traps.php"><?php echo token_field(); ?>
    <input type="hidden" name="change" value="test">
    <p class="note">The test restarts the agent's traps and sends one to every receiver.</p>
    <p class="actions"><button type="submit" data-busy="Sending…">Send a test trap</button></p>
  </form>
<?php } ?>
</section>

<?php if ($may_change) { ?>
<section class="card" aria-labelledby="add">
  <h2 id="add">Add a receiver</h2>
<?php
echo form_begin('traps.php', 'add');
echo seen_field($seen);
if ($is_known) echo '<input type="hidden" name="listed" value="1">';
echo text_field('ip', 'Address', $typed['ip'], $errors, 'IPv4 or IPv6 address of the management system.');
echo text_field('port', 'Port', $typed['port'], $errors, '', 'inputmode="numeric" class="short"');
echo choice_field('transport', 'Transport', array(
    '1' => array('label' => 'UDP', 'hint' => 'Usual.'),
    '2' => array('label' => 'TCP', 'hint' => '')),
    $typed['transport'], $errors);
echo form_end('Add');
?>
</section>
<?php } else echo why_only_shown(); ?>
