'use strict';
const {base, open, press, signIn, test} = require('/root/w/audit/tests/pages/browser.cjs');
const {php, inAppliance} = require('/root/w/audit/tests/pages/appliance.cjs');
for (const [colorScheme, width, height] of [['light', 1280, 800], ['dark', 390, 800]]) {
  test(`look ${colorScheme}`, {colorScheme, viewport: {width, height}}, async (page) => {
    await signIn(page);
    const shot = (name) => page.screenshot({path: `${process.env.PAGES_TEST_FOLDER}/shots/${name}-${width}.png`, fullPage: true});
    await open(page, 'dns.php');
    await page.fill('#dnsPrimary', '10.20.0.1'); await page.fill('#dnsSecondary', width === 390 ? '10.20.0.9' : '');
    await press(page, 'Save');
    await open(page, 'snmp.php');
    await page.setChecked('#trap2', width === 1280);
    await page.fill('#community_name', 'public' + width);
    await press(page, 'Save');
    php('set_eth2_port_settings($session, 1, 4242, 1);create_snmp_trap_reg($session, 7, "10.20.0.78", "162");');
    await open(page, 'traps.php');
    await page.fill('#ip', '10.20.0.1'); await page.fill('#port', '1' + width); await press(page, 'Add');
    await page.fill('#ip', '10.20.0.77'); await press(page, 'Add');
    await page.check('#transport-2'); await page.fill('#ip', '10.20.0.1'); await press(page, 'Add');
    await press(page, 'Send a test trap');
    await shot('traps');
    await open(page, 'diagnostics.php');
    await shot('diagnostics');
    console.error('HEIGHT', width, await page.evaluate(() => document.documentElement.scrollHeight));
    await page.fill('#ping', '10.20.0.1'); await press(page, 'Ping');
    await page.fill('#lookup', 'library'); await press(page, 'Look up');
    for (const one of await page.locator('details.fold > summary:visible').all()) await one.click();
    await shot('unfolded');
    php('foreach (get_snmp_trap_regs($session) as $receiver) delete_snmp_trap_reg($session, $receiver->id);');
  });
}
