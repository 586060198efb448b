<section class="card">
  <p><?php echo state('wait', 'The web server restarts with HTTPS ' . ($on ? 'on' : 'off')); ?></p>
  <progress aria-label="The web server restarts"></progress>
  <p>This takes a few seconds. Then sign in again at
    <a href="<?php echo h($address); ?>" data-go-after-restart><?php echo h($address); ?></a>.</p>
<?php if ($on) { ?>
  <p class="hint">Your browser will say that it does not know the certificate: the appliance has made it itself. Accept it for
    this address only.</p>
<?php } ?>
</section>
