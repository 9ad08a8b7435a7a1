# Writes rich texts with RTF::Writer: a letter, a table, a list of signs.
use strict;
use warnings;
use utf8;
use RTF::Writer;
my $folder = shift;

my $letter = RTF::Writer->new_to_file("$folder/rtfwriter_letter.rtf");
$letter->prolog('title' => 'Letter', 'fonts' => ['Arial', 'Times New Roman'],
                'colors' => [undef, [255, 0, 0], [0, 0, 160]]);
$letter->number_pages;
$letter->paragraph(\'\fs40\b\cf1', "Proposal & Agreement");
$letter->paragraph("We heat and cool. Prices in \$, angles in °, 100 % done.");
$letter->paragraph(\'\li720\fi-360', "1.", \'\tab ', "a hanging point with ", [\'\b', "bold"], " and ", [\'\i\f1', "italic"], " words");
$letter->paragraph("Braces {so} and a backslash \\ stay.");
$letter->print(\'{\pard\qc ', "centred <PAGE> token", \'\par}');
$letter->paragraph(\'\cf2', "The price is <\$\$\$\$>.");
$letter->close;

my $table = RTF::Writer->new_to_file("$folder/rtfwriter_table.rtf");
$table->prolog('title' => 'Rates');
my $rows = RTF::Writer::TableRowDecl->new('widths' => [2880, 1440, 1440]);
$table->row($rows, "Trade", "Regular", "Overtime");
$table->row($rows, "Sheet metal", "\$62.00", "\$93.00");
$table->row($rows, "Helper", "\$38.00", "\$57.00");
$table->paragraph("Rates hold through December.");
$table->close;

my $signs = RTF::Writer->new_to_file("$folder/rtfwriter_signs.rtf");
$signs->prolog('title' => 'Signs');
$signs->paragraph("Größe, façade, niño, Łódź, Москва, 日本, 20 °C ± 2 °F, ½″, € 5");
$signs->paragraph("– dash — dash “quoted” ‘so’ …");
$signs->close;
