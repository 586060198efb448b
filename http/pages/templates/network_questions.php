<?php // What can be asked from the appliance: $questions, of which $asked was asked about $value. ?>
<section class="card" aria-labelledby="network">
  <h2 id="network">Ask the network</h2>
  <div class="questions">
<?php foreach ($questions as $kind => $question) { ?>
    <div>
<?php
$is_asked = $kind == $asked;
echo form_begin('diagnostics.php#network', $kind);
$name = 'value';
$error = $is_asked && isset($question_errors[$kind]) ? $question_errors[$kind] : '';
?>
      <div class="field<?php if ($error != '') echo ' wrong'; ?>"><label for="<?php echo $kind; ?>"><?php
        echo h($question['title'] . ': ' . strtolower($question['label'])); ?></label>
        <input type="text" id="<?php echo $kind; ?>" name="value" value="<?php echo h(typed_again('value', $is_asked ? $value : '')); ?>"<?php
          echo described_by($kind, '', $error); ?> autocomplete="off" autocapitalize="none" spellcheck="false">
        <?php echo field_notes($kind, '', $error); ?></div>
      <p class="actions"><button type="submit" data-busy="Asking…"><?php echo h($question['button']); ?></button></p>
      </fieldset></form>
<?php fill_no_more(); ?>
    </div>
<?php } ?>
  </div>
<?php if ($answer) { ?>
  <div role="status" tabindex="-1" data-focus><?php
    echo message($answer['kind'], '<p>' . h(implode(' ', $answer['lines'])) . '</p>'); ?></div>
<?php } else { ?>
  <p class="hint">The appliance asks for 5 seconds at most, one question at a time.</p>
<?php } ?>
</section>
