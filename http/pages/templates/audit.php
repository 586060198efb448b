<?php
$query = '';
foreach ($wanted as $name => $wish) {
    $query .= $wish == '' ? '' : '&' . $name . '=' . urlencode($wish);
}
$outcomes = array();
foreach ($GLOBALS['audit_outcomes'] as $outcome => $words) {
    $outcomes[$outcome] = $words[1];
}
$filters = array('user' => array('label' => 'User', 'choices' => $users),
    'subject' => array('label' => 'Subject', 'choices' => $GLOBALS['audit_subjects']),
    'outcome' => array('label' => 'Outcome', 'choices' => $outcomes));
?>
<section class="card" aria-labelledby="audit">
  <h2 id="audit">Audit</h2>
  <form method="get" action="diagnostics.php" class="filter" aria-label="Filter of the audit">
<?php foreach ($filters as $name => $about) { ?>
    <div class="field choice"><label for="audit-<?php echo $name; ?>"><?php echo $about['label']; ?></label>
    <select name="<?php echo $name; ?>" id="audit-<?php echo $name; ?>"><option value="">All</option>
<?php if ($wanted[$name] != '' && !isset($about['choices'][$wanted[$name]])) $about['choices'][$wanted[$name]] = $wanted[$name]; ?>
<?php foreach ($about['choices'] as $choice => $label) { ?>
      <option value="<?php echo h($choice); ?>"<?php if ((string) $choice === $wanted[$name]) echo ' selected'; ?>><?php
        echo h($label); ?></option>
<?php } ?>
    </select></div>
<?php } ?>
    <button type="submit">Show</button>
  </form>
<?php foreach ($gaps as $gap => $kind) echo message($kind, '<p>' . h($gap) . '</p>'); ?>
<?php if (!$entries) { ?>
  <p class="empty"><?php echo $count > 0 ? 'There is no such page.' : ($query == '' ? 'Nothing was done yet.'
      : 'Nothing of this kind was done.'); ?></p>
<?php } else { ?>
  <table class="stacks audit">
    <thead><tr><th scope="col">Time (UTC)</th><th scope="col">Who</th><th scope="col">What</th><th scope="col">Outcome</th></tr></thead>
    <tbody>
<?php foreach ($entries as $entry) echo render('audit_entry', array('entry' => $entry)); ?>
    </tbody>
  </table>
<?php } ?>
  <div class="pager">
    <p class="hint"><?php echo $count == 1 ? '1 entry' : (int) $count . ' entries'; ?><?php if ($pages > 1 && $page > 0)
      echo ', page ' . (int) $page . ' of ' . (int) $pages; ?></p>
    <?php if ($page > 1) { ?><a class="button" rel="prev" href="diagnostics.php?page=<?php
      echo (int) min($page - 1, $pages) . h($query); ?>">Newer</a><?php } ?>
    <?php if ($page > 0 && $page < $pages) { ?><a class="button" rel="next" href="diagnostics.php?page=<?php
      echo (int) ($page + 1) . h($query); ?>">Older</a><?php } ?>
    <a href="audit.php?<?php echo h(ltrim($query, '&')); ?>">Download as CSV</a>
  </div>
  <details class="fold"><summary>How much is kept</summary>
    <p class="hint">The newest <?php echo (int) $GLOBALS['audit_files']['changes']['lines']; ?> changes,
      <?php echo (int) $GLOBALS['audit_files']['sign-ins']['lines']; ?> sign-ins and sign-outs and
      <?php echo (int) $GLOBALS['audit_files']['refusals']['lines']; ?> lines of what was refused, of which those about the same, of one user
      and one address (of IPv6: one network) within a day are one line with the last address; each line has <?php echo AUDIT_LINE_BYTES; ?> bytes at most. None of the three takes room from another.
      Of what the management services did, for a page or without one, the newest 1500 operations.</p></details>
</section>
