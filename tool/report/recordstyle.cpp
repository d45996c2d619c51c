#include "recordstyle.h"

QString recordStyle(QPageSize::PageSizeId paper)
{
    const QString size =
        paper == QPageSize::Letter ? QStringLiteral("letter") : QStringLiteral("A4");
    return QStringLiteral(R"(
body { color: #000000; background-color: #ffffff; font-family: sans-serif; font-size: 10pt; }
h1 { font-size: 20pt; margin-top: 0px; margin-bottom: 6px; }
h2 { font-size: 15pt; margin-top: 24px; margin-bottom: 8px; }
h3 { font-size: 12pt; margin-top: 18px; margin-bottom: 6px; }
h4 { font-size: 10pt; margin-top: 12px; margin-bottom: 4px; }
p { margin-top: 4px; margin-bottom: 6px; }
table { width: 100%; border-spacing: 0px; margin-bottom: 10px; }
th, td { font-size: 9pt; text-align: left; vertical-align: top; padding: 2px 8px 2px 0px;
  border-style: none; border-bottom: 1px solid #808080; }
th.name { font-weight: normal; }
body, th, td, p, li { overflow-wrap: anywhere; }
@media screen { main { display: block; max-width: 50em; margin: 2em auto; padding: 0 1em; } }
@media print {
  thead { display: table-header-group; }
  tr, img { break-inside: avoid; }
  h1, h2, h3, h4, p.picture, p.counts { break-after: avoid; }
}
@page { size: %1; margin: 15mm; }
)")
        .arg(size);
}
