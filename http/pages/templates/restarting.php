<section class="card"<?php if ($seconds > 0) echo ' data-return="applying.php"'; ?>>
  <div data-until-there>
    <p><?php echo state('wait', 'The web server restarts with HTTPS ' . ($on ? 'on' : 'off')); ?></p>
    <progress aria-label="The web server restarts"></progress>
  </div>
  <p data-when-there hidden><?php echo state('good', 'HTTPS is there: continue below'); ?></p>
<?php if ($seconds > 0) { ?>
  <p data-when-over hidden>The time is over: either somebody has kept the new mode, or the mode of before answers again in some
    seconds and this page goes there.</p>
  <p data-until-over>On trial: the mode of before comes back in <strong role="timer" aria-live="off" data-countdown="<?php echo (int) $seconds; ?>"><?php
    echo (int) $seconds; ?></strong> seconds unless somebody reaches the pages in the new one.</p>
<?php } ?>
<?php if ($on) { ?>
  <h2>The appliance's certificate</h2>
  <p>Your browser will say that it does not know the certificate: the appliance has made it itself. Compare what the browser
    shows with this, and accept it for this address only.</p>
<?php if ($certificate) { ?>
  <dl>
<?php foreach ($certificate as $label => $text) { ?>
    <dt><?php echo h($label); ?></dt><dd class="code"><?php echo h($text); ?></dd>
<?php } ?>
  </dl>
<?php } ?>
  <p class="actions"><a class="button primary" href="<?php echo h($address); ?>"<?php
    if (!$seconds) echo ' data-go-after-restart'; ?>>Continue with HTTPS</a></p>
  <p class="hint">It takes a few seconds until the pages are there. Then sign in again.</p>
<?php } else { ?>
  <p>This takes a few seconds. Then sign in again at
    <a href="<?php echo h($address); ?>" data-go-after-restart><?php echo h(preg_replace('/[a-z]+\.php$/', '', $address)); ?></a>.</p>
<?php } ?>
</section>
