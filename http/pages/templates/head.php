<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta name="color-scheme" content="light dark">
<title><?php echo h($title); ?></title>
<link rel="icon" href="<?php echo asset('icon.svg'); ?>" type="image/svg+xml">
<link rel="stylesheet" href="<?php echo asset('style.css'); ?>">
<script src="<?php echo asset('pages.js'); ?>" defer></script>
