#include "analysis/HtmlReportParts.h"

#include <QCryptographicHash>

#include <array>
#include <cstddef>

namespace KVCAM::UIAPI::Ext::Html {
namespace {

// On a dark ground, by severity as in severityPalette.
constexpr std::array<unsigned, severityCount> darkColours = {0xa3abb5, 0x4cc3d0, 0xf0a640, 0xff8590};

constexpr char const * rules = R"css(
body{margin:0 auto;padding:1.5rem;max-width:82rem;background:var(--ground);color:var(--ink);
font:1rem/1.45 system-ui,"Segoe UI","Noto Sans","Noto Sans CJK SC","Noto Sans SC","Source Han Sans SC",
"PingFang SC","Microsoft YaHei","WenQuanYi Micro Hei",sans-serif;overflow-wrap:anywhere}
h1{font-size:1.6rem;margin:0 0 .5rem}
h2{font-size:1.25rem;margin:2.2rem 0 .6rem;padding-top:.8rem;border-top:1px solid var(--line)}
h3{font-size:1.05rem;margin:1.6rem 0 .3rem}
p{margin:.4rem 0;max-width:60rem}
a{color:var(--link)}
i{font-style:normal}
.dim,small{color:var(--dim)}
small{font-size:.85em}
dl{display:grid;grid-template-columns:max-content 1fr;gap:.1rem 1rem;margin:0}
dt{color:var(--dim)}
dd{margin:0}
.counts{display:flex;flex-wrap:wrap;gap:.6rem;list-style:none;margin:1rem 0;padding:0}
.counts>li{border:1px solid var(--line);border-left:.4rem solid var(--line);border-radius:.3rem;min-width:7rem}
.counts .cell{display:block;padding:.4rem .8rem}
.counts b{display:block;font-size:1.7rem;line-height:1.2}
.counts button{all:unset;box-sizing:border-box;width:100%;cursor:pointer}
.counts button:focus-visible,th button:focus-visible{outline:2px solid var(--link);outline-offset:2px}
.counts button[aria-pressed=false]{opacity:.45;text-decoration:line-through}
.wide{overflow-x:auto;margin:.4rem 0}
table{border-collapse:collapse;width:100%;font-size:.9rem;overflow-wrap:normal}
caption{text-align:left;color:var(--dim);padding:.2rem 0}
th,td{text-align:left;vertical-align:top;padding:.25rem .6rem;border-bottom:1px solid var(--line)}
thead th{background:var(--head);vertical-align:bottom}
th button{all:unset;cursor:pointer;text-decoration:underline dotted}
th[aria-sort=ascending] button::after{content:" \2191"}
th[aria-sort=descending] button::after{content:" \2193"}
.n{text-align:right;font-variant-numeric:tabular-nums;white-space:nowrap}
.k{white-space:nowrap}
.t{min-width:6rem;max-width:24rem;overflow-wrap:anywhere}
.w{min-width:11rem}
td code{font-size:.9em}
summary{white-space:nowrap;cursor:pointer}
:target{background:var(--head);outline:2px solid var(--link)}
.R i{color:var(--R)}.Y i{color:var(--Y)}.G i{color:var(--G)}.N i{color:var(--N)}
td.R i{color:var(--R)}td.Y i{color:var(--Y)}td.G i{color:var(--G)}td.N i{color:var(--N)}
.counts>.R{border-left-color:var(--R)}.counts>.Y{border-left-color:var(--Y)}
.counts>.G{border-left-color:var(--G)}.counts>.N{border-left-color:var(--N)}
.bars td{vertical-align:middle}
.bars .bar{width:100%;padding-left:0;padding-right:0}
.bars svg{display:block;width:100%;min-width:8rem;overflow:visible}
rect.R,line.R{fill:var(--R);stroke:var(--R)}rect.Y,line.Y{fill:var(--Y);stroke:var(--Y)}
rect.G,line.G{fill:var(--G);stroke:var(--G)}rect.N,line.N{fill:var(--N);stroke:var(--N)}
.bars rect{stroke:none}
.bars line{stroke-width:1.5;stroke-dasharray:4 2}
.bars line.tick{stroke:var(--dim);stroke-width:1;stroke-dasharray:none}
.bars text{fill:var(--dim);font-size:11px;text-anchor:middle}
section,figure{content-visibility:auto;contain-intrinsic-size:auto 40rem}
figure{margin:1rem 0;break-inside:avoid}
figcaption{margin-bottom:.3rem}
figure svg{display:block;width:100%;min-width:40rem;border:1px solid var(--line);background:#fff}
.m circle{stroke:#fff;stroke-width:1.5}
.m text{font:bold 11px sans-serif;fill:#fff;text-anchor:middle}
.m .nr{font:11px sans-serif;fill:#1c2330;stroke:#fff;stroke-width:3;paint-order:stroke;text-anchor:start}
.m .R circle{fill:var(--paper-R)}.m .Y circle{fill:var(--paper-Y)}
.m .G circle{fill:var(--paper-G)}.m .N circle{fill:var(--paper-N)}
@media (max-width:40rem){body{padding:.8rem}.counts>li{min-width:5.5rem}th,td{padding:.25rem .4rem}.w{min-width:7rem}}
@media screen{.no-R tr.R,.no-R a.R,.no-Y tr.Y,.no-Y a.Y,.no-G tr.G,.no-G a.G,.no-N tr.N,.no-N a.N{display:none}}
@page{size:A4;margin:14mm 12mm 16mm;@bottom-right{content:counter(page) " / " counter(pages);font-size:8pt}}
@media print{
section,figure{content-visibility:visible}
body{padding:0;max-width:none;font-size:9.5pt;print-color-adjust:exact;-webkit-print-color-adjust:exact}
table{font-size:7.5pt}th,td{padding:.6mm 1mm}h1{font-size:16pt}h2{font-size:13pt}h3{font-size:10.5pt}
h2,h3,caption,figcaption{break-after:avoid}tr,.counts>li{break-inside:avoid}thead{display:table-header-group}
.wide{overflow:visible}figure svg{min-width:0}nav,.hint{display:none}a{color:inherit;text-decoration:none}
.id{display:none}th button{display:contents}
.t{min-width:0;max-width:38mm}.w{min-width:28mm}.counts button[aria-pressed=false]{opacity:1;text-decoration:none}}
)css";

// Neither "<" nor "&", which XML would take for markup. Sorting moves the rows of a table; the value of a
// cell is its number where its column is one.
constexpr char const * actions = R"js(
(function () {
"use strict";
var root = document.documentElement;
function button(parent) {
  var made = document.createElement("button");
  made.type = "button";
  while (parent.firstChild) { made.appendChild(parent.firstChild); }
  parent.appendChild(made);
  return made;
}
document.querySelectorAll(".counts>[data-s]").forEach(function (item) {
  var made = button(item);
  made.setAttribute("aria-pressed", "true");
  made.addEventListener("click", function () {
    var hidden = root.classList.toggle("no-" + item.dataset.s);
    made.setAttribute("aria-pressed", hidden ? "false" : "true");
  });
});
function keyOf(row, column, kind) {
  if (kind === "s") { return "RYGN".indexOf(row.className); }
  var text = row.cells[column].textContent;
  if (kind === "t") { return text; }
  var number = parseFloat(text);
  return isNaN(number) ? Infinity : number;
}
function sort(head, kind) {
  var up = head.getAttribute("aria-sort") !== "ascending";
  var body = head.closest("table").tBodies[0];
  var rows = Array.from(body.rows).map(function (row) {
    return { row: row, key: keyOf(row, head.cellIndex, kind) };
  });
  var collator = new Intl.Collator(undefined, { numeric: true });
  rows.sort(function (a, b) {
    if (a.key === b.key) { return 0; }
    if (a.key === Infinity) { return 1; }
    if (b.key === Infinity) { return -1; }
    var order = kind === "t" ? collator.compare(a.key, b.key) : a.key - b.key;
    return up ? order : -order;
  });
  head.parentNode.querySelectorAll("[aria-sort]").forEach(function (other) { other.removeAttribute("aria-sort"); });
  head.setAttribute("aria-sort", up ? "ascending" : "descending");
  rows.forEach(function (each) { body.appendChild(each.row); });
}
document.querySelectorAll("th[data-k]").forEach(function (head) {
  button(head).addEventListener("click", function () { sort(head, head.dataset.k); });
});
document.querySelectorAll(".hint").forEach(function (hint) { hint.hidden = false; });
})();
)js";

QByteArray colour(unsigned rgb)
{
    return '#' + QByteArray::number(rgb, 16).rightJustified(6, '0') + ';';
}

// The colours of the severities; those of paper also for the marks, since pictures are light at any time.
QByteArray colours()
{
    QByteArray paper;
    QByteArray light;
    QByteArray dark;
    for (SeverityMark const & mark : severityPalette) {
        QByteArray const name(1, letterOf(mark.severity));
        paper += "--paper-" + name + ':' + colour(mark.rgb);
        light += "--" + name + ":var(--paper-" + name + ");";
        dark += "--" + name + ':' + colour(darkColours[static_cast<std::size_t>(mark.severity)]);
    }
    return "\n:root{color-scheme:light dark;--ground:#fff;--ink:#1c2330;--dim:#566070;--line:#d3d8df;"
           "--head:#f1f4f7;--link:#0b57a4;" +
           paper + light +
           "}\n@media screen and "
           "(prefers-color-scheme:dark){:root{--ground:#14181e;--ink:#e6e9ee;--dim:#a7b0bc;"
           "--line:#39414c;--head:#1f252d;--link:#8ec1ff;" +
           dark + "}}";
}

QByteArray hashSource(QByteArray const & text)
{
    return "'sha256-" + QCryptographicHash::hash(text, QCryptographicHash::Sha256).toBase64() + '\'';
}

} // namespace

QByteArray const & style()
{
    static QByteArray const text = colours() + rules;
    return text;
}

QByteArray const & script()
{
    static QByteArray const text(actions);
    return text;
}

QByteArray contentPolicy()
{
    return "default-src 'none'; img-src data:; style-src " + hashSource(style()) + "; script-src " +
           hashSource(script()) + "; base-uri 'none'; form-action 'none'";
}

} // namespace KVCAM::UIAPI::Ext::Html
