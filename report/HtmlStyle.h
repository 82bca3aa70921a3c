#pragma once

/// What a report for a browser looks like, on a screen and printed. Margins and inline blocks rather than gaps and grids, which mail programs and
/// older readers do not know.
namespace ZARN::HtmlStyle {

/// Nothing is loaded from elsewhere and nothing runs, whatever a card or profile is called.
constexpr const char* kPolicy = "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; img-src data:; font-src data:; "
                                "style-src 'unsafe-inline'\">\n";

/// Colours are those of paper by their names.
constexpr const char* kSheet = R"(:root{color-scheme:light}
body{font:15px/1.5 "ZARN Text","DejaVu Sans",sans-serif;color:$(text);background:$(paper);max-width:60rem;margin:1.5rem auto;padding:0 1.5rem}
h1{font-size:1.7rem;color:$(accent);margin:0}
h2{font-size:1.15rem;color:$(accent);border-bottom:1px solid $(border);margin:2rem 0 .6rem}
p{margin:.3rem 0}
header p,.quiet,dt,caption,footer{color:$(quiet)}
.alert{color:$(alert);font-weight:700}
.verdict{display:flex;align-items:center;margin:1.2rem 0}
.verdict img{width:48px;height:48px;margin-right:1rem}
.word{font-size:1.5rem;font-weight:700;line-height:1.2}
dl{margin:.6rem 0}
dd{margin:0;overflow-wrap:break-word}
.figures div{display:inline-flex;flex-direction:column-reverse;margin:.2rem 2.5rem .2rem 0}
.figures dt,.figures dd{white-space:nowrap}
.figures dd{font-size:1.3rem;font-weight:700}
.pairs div{display:inline-block;width:49%;vertical-align:top}
.pairs dt{display:inline-block;width:38%;vertical-align:top}
.pairs dd{display:inline-block;width:60%}
article{margin:1rem 0}
.incident{position:relative;padding-left:6.2rem;min-height:1.5rem}
.incident img{position:absolute;left:0;top:.1rem;width:18px;height:18px}
.time{position:absolute;left:1.8rem;white-space:nowrap}
.sentence{overflow-wrap:break-word}
figure{margin:.5rem 0}
figure img{width:100%;height:auto}
.wide{overflow-x:auto}
table{border-collapse:collapse}
caption{text-align:left;position:absolute;clip-path:inset(50%);width:1px;height:1px;overflow:hidden}
th,td{text-align:left;font-weight:400;padding:.1rem 1.2rem .1rem 0;vertical-align:top}
thead th{font-weight:700;color:$(quiet);border-bottom:1px solid $(border)}
.number{text-align:right}
tbody tr:nth-child(even){background:$(alternate)}
footer{margin-top:2rem;border-top:1px solid $(border)}
@media screen and (max-width:40rem){.pairs div{width:100%}}
@media print{body{font-size:9pt;max-width:none;margin:0;padding:0}article,figure,tr,.verdict,.figures{break-inside:avoid}h2,.quiet{break-after:avoid}
thead{display:table-header-group}.wide{overflow:visible}@page{margin:15mm}}
)";

} // namespace ZARN::HtmlStyle
