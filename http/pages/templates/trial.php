<p class="lead">The appliance is here, under its new settings.</p>
<form method="post" action="trial.php" data-key-form hidden>
  <input type="hidden" name="key" value="">
  <p class="actions"><button type="submit" class="primary">Go on</button></p>
</form>
<p><a href="applying.php">Sign in, to keep the change</a></p>
