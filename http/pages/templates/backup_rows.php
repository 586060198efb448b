<table class="stacks">
  <thead><tr><th scope="col">Setting</th><th scope="col">Now</th><th scope="col">In the file</th></tr></thead>
  <tbody>
<?php foreach ($rows as $row) { ?>
  <tr>
    <th scope="row"><?php echo h($row['label']); ?></th>
    <td data-label="Now"><?php echo h($row['now']); ?></td>
    <td data-label="In the file"><?php echo h($row['wanted']); ?></td>
  </tr>
<?php } ?>
  </tbody>
</table>
