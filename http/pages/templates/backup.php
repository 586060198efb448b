<?php if (!may_change($GLOBALS['session'])) { ?>
<section class="card" aria-label="Backup">
  <p>Downloading and applying a file of settings needs the role admin: the file has the read community of the SNMP agent.</p>
</section>
<?php } else { ?>
<section class="card" aria-labelledby="download">
  <h2 id="download">Download</h2>
  <p>One text file with the host name, the addresses, DNS, Ethernet port, web security, SNMP agent and trap receivers.</p>
  <p class="note">In the file: the read community, which works like a password. Not in it, because the pages cannot read them: the
  passwords of the accounts, the keys of SNMP version 3, the key of the certificate, and the static IPv4 address that the
  appliance remembers while DHCP is on.</p>
  <form method="post" action="backup.php" class="form" data-stays><?php echo token_field(); ?>
    <input type="hidden" name="change" value="download">
<?php if ($unreadable) { ?>
    <?php echo message('bad', '<p><strong>No file was made: ' . h(titles_of_parts($unreadable)) . ' cannot be read.</strong></p>'
        . '<p>Try again, or take a file that leaves this out.</p>'); ?>
    <p class="actions"><button type="submit" class="primary">Download</button>
      <button type="submit" name="without" value="1">Download without it</button></p>
<?php } else { ?>
    <p class="actions"><button type="submit" class="primary">Download</button></p>
<?php } ?>
  </form>
</section>

<section class="card" aria-labelledby="upload">
  <h2 id="upload">Bring back</h2>
  <p>First the file and the settings of now are shown side by side. You choose what is applied.</p>
  <form method="post" action="backup.php" enctype="multipart/form-data" class="form"><?php echo token_field(); ?>
    <input type="hidden" name="change" value="upload">
    <div class="field file<?php if (isset($errors['file'])) echo ' wrong'; ?>"><label for="file">File</label>
      <input type="file" id="file" name="file" accept=".txt,text/plain"<?php
        echo described_by('file', 'hint', isset($errors['file']) ? $errors['file'] : ''); ?>>
      <?php echo field_notes('file', 'A file that was downloaded here, 64 KiB at most. It may have been edited.',
          isset($errors['file']) ? $errors['file'] : ''); ?></div>
<?php if ($wrong_lines) { ?>
    <table class="wrong-lines">
      <thead><tr><th scope="col">Line</th><th scope="col">What is wrong</th></tr></thead>
      <tbody>
<?php foreach (array_slice(array_keys($wrong_lines), 0, BACKUP_ERRORS) as $line) { ?>
      <tr><th scope="row"><?php echo $line == 0 ? 'All' : (int) $line; ?></th><td><?php echo h($wrong_lines[$line]); ?></td></tr>
<?php } ?>
      </tbody>
    </table>
<?php if (count($wrong_lines) > BACKUP_ERRORS) { ?>
    <p>Lines with something wrong that are not listed: <?php echo count($wrong_lines) - BACKUP_ERRORS; ?>.</p>
<?php } ?>
<?php } ?>
    <p class="actions"><button type="submit" class="primary">Compare</button></p>
  </form>
</section>
<?php } ?>
