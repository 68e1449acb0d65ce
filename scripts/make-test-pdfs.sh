#!/bin/bash
# Makes the PDF files of tests/imageview/data anew. The tests use the files that are there: this
# is needed only to add one. Debian packages: gnuplot-nox texlive-latex-base ghostscript qpdf.
set -euo pipefail
data=$(realpath "$(dirname "$0")/../tests/imageview/data")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
export SOURCE_DATE_EPOCH=1700000000

# A page of 400 x 300 with a square of 20 points in each corner of the box 50..350 x 40..240:
# red at the bottom left, green at the bottom right, blue at the top left, black at the top right.
cat > marks.ps <<'PS'
%!PS
<< /PageSize [400 300] >> setpagedevice
1 0 0 setrgbcolor 50 40 20 20 rectfill
0 1 0 setrgbcolor 330 40 20 20 rectfill
0 0 1 setrgbcolor 50 220 20 20 rectfill
0 0 0 setrgbcolor 330 220 20 20 rectfill
showpage
PS
gs -q -dNOPAUSE -dBATCH -dAutoRotatePages=/None -sDEVICE=pdfwrite -o marks.pdf marks.ps

# with_page_keys <from> <to> <keys>: puts keys into the only page's dictionary.
with_page_keys() {
    qpdf --qdf --object-streams=disable "$1" plain.pdf
    perl -0pe 's/(\n  \/Type \/Page\n)/$1  '"${3//\//\\/}"'\n/' plain.pdf > changed.pdf
    fix-qdf changed.pdf > fixed.pdf
    qpdf --deterministic-id fixed.pdf "$data/$2"
}
crop='/CropBox [50 40 350 240]'
with_page_keys marks.pdf crop-rotate-0.pdf "$crop"
for degrees in 90 180 270 450 -90; do
    with_page_keys marks.pdf "crop-rotate-$degrees.pdf" "$crop /Rotate $degrees"
done
with_page_keys marks.pdf crop-beyond-paper.pdf '/CropBox [200 240 600 -100]'
with_page_keys marks.pdf user-unit.pdf "$crop /UserUnit 2"

# The same boxes, handed down by the tree of pages.
perl -0pe 's/\n  \/CropBox \[.*?\]\n/\n/s; s/\n  \/MediaBox \[.*?\]\n/\n/s;
           s/(\n  \/Type \/Pages\n)/$1  \/MediaBox [0 0 400 300] \/CropBox [50 40 350 240] \/Rotate 90\n/' \
    <(qpdf --qdf --object-streams=disable marks.pdf -) > inherited.pdf
fix-qdf inherited.pdf > fixed.pdf
qpdf --deterministic-id fixed.pdf "$data/inherited-boxes.pdf"

# A plot, by way of Cairo.
gnuplot <<'PLOT'
set terminal pdfcairo size 4in,3in font "DejaVu Sans,10"
set output "plot.pdf"
set title "Damped oscillation"
set xlabel "t / s"
set grid
plot [0:10] exp(-x/4)*cos(3*x) title "measured" with lines linewidth 2
PLOT
cp plot.pdf "$data/plot-cairo.pdf"

# Letter paper by LaTeX: one page, and 12 and 25 of them.
for pages in 1 12 25; do
    cat > letter.tex <<TEX
\\documentclass[letterpaper]{article}
\\usepackage[margin=1in]{geometry}
\\pagestyle{empty}
\\pdfinfoomitdate=1 \\pdftrailerid{}
\\newcount\\n
\\begin{document}
\\n=0
\\loop \\advance\\n by 1
\\vspace*{2in}\\centerline{\\Huge Page \\number\\n}\\bigskip
\\centerline{\\setlength{\\unitlength}{1pt}\\begin{picture}(300,200)
\\put(0,0){\\vector(1,0){300}}\\put(0,0){\\vector(0,1){200}}
\\qbezier(0,0)(\\number\\n0,200)(290,150)\\end{picture}}
\\newpage \\ifnum\\n<$pages \\repeat
\\end{document}
TEX
    pdflatex -interaction=batchmode letter.tex > pdflatex.log
    cp letter.pdf "$data/letter-$pages.pdf"
done
qpdf --deterministic-id --linearize "$data/plot-cairo.pdf" "$data/linearized.pdf"

# Locked files: with a modern and with an old cipher, and one that only its owner may change.
qpdf --encrypt geheim Besitzer 256 -- marks.pdf "$data/locked-aes.pdf"
qpdf --allow-weak-crypto --encrypt geheim Besitzer 40 -- marks.pdf "$data/locked-rc4.pdf"
qpdf --encrypt "" Besitzer 256 -- marks.pdf "$data/owner-locked.pdf"

# No pages at all.
perl -0pe 's/\/Count 1/\/Count 0/; s/\/Kids \[.*?\]/\/Kids []/s' \
    <(qpdf --qdf --object-streams=disable marks.pdf -) > none.pdf
fix-qdf none.pdf > fixed.pdf
qpdf --deterministic-id fixed.pdf "$data/no-pages.pdf"
