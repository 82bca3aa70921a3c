#pragma once

/// What a report for a browser looks like, on a screen and printed.
namespace ZARN::HtmlStyle {

/// Nothing is loaded from elsewhere and nothing runs, whatever a card or profile is called.
constexpr const char* kPolicy =
    "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; img-src data:; font-src data:; style-src 'unsafe-inline'\">\n";

constexpr const char* kSheet = R"(:root{color-scheme:light}
body{font:15px/1.5 "ZARN Text","DejaVu Sans",sans-serif;color:#14212e;background:#fff;max-width:60rem;margin:1.5rem auto;padding:0 1.5rem}
h1{font-size:1.7rem;color:#12588f;margin:0}
h2{font-size:1.15rem;color:#12588f;border-bottom:1px solid #b4bfca;margin:2rem 0 .6rem}
p{margin:.3rem 0}
header p,.quiet,dt,caption,footer{color:#4a5b6b}
.alert{color:#961e0f;font-weight:700}
.verdict{display:flex;gap:1rem;align-items:center;margin:1.2rem 0}
.word{font-size:1.5rem;font-weight:700;line-height:1.2}
dl{margin:.6rem 0}
dd{margin:0;overflow-wrap:anywhere}
.figures{display:flex;flex-wrap:wrap;gap:.4rem 2.5rem}
.figures div{display:flex;flex-direction:column-reverse}
.figures dd{font-size:1.3rem;font-weight:700}
.pairs{display:grid;grid-template-columns:repeat(auto-fill,minmax(24rem,1fr));gap:.1rem 2rem}
.pairs div{display:grid;grid-template-columns:11rem 1fr}
article{margin:1rem 0}
.incident{display:flex;gap:.7rem;align-items:flex-start}
.incident img{flex:none;margin-top:.15rem}
.time{flex:none;min-width:3.2rem}
.sentence{overflow-wrap:anywhere}
figure{margin:.5rem 0}
figure img{width:100%;height:auto}
.wide{overflow-x:auto}
table{border-collapse:collapse}
caption{text-align:left;position:absolute;clip-path:inset(50%);width:1px;height:1px;overflow:hidden}
th,td{text-align:left;font-weight:400;padding:.1rem 1.2rem .1rem 0;vertical-align:top}
thead th{font-weight:700;color:#4a5b6b;border-bottom:1px solid #b4bfca}
.number{text-align:right}
tbody tr:nth-child(even){background:#f4f7fa}
footer{margin-top:2rem;border-top:1px solid #b4bfca}
@media (max-width:40rem){.pairs{grid-template-columns:1fr}}
@media print{body{font-size:9pt;max-width:none;margin:0;padding:0}article,figure,tr,.verdict,.figures{break-inside:avoid}h2{break-after:avoid}
thead{display:table-header-group}.wide{overflow:visible}@page{margin:15mm}}
)";

} // namespace ZARN::HtmlStyle
