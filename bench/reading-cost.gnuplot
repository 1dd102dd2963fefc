# gnuplot -c reading-cost.gnuplot <data> <picture>
set terminal svg size 800,520 background "white" font "DejaVu Sans,13"
set output ARG2

set title "Reading a reply of detailed parking lots"
set xlabel "size of the reply [MB]"
set ylabel "time [ms]"
set logscale xy
set format xy "%g"
set xrange [0.08:200]
set grid linecolor "#dddddd"
set border 3 linecolor "#888888"
set tics nomirror
set key left top reverse Left

set linetype 1 linecolor "#888888" linewidth 2 dashtype 2 pointtype 7 pointsize 0.5
set linetype 2 linecolor "#74a9cf" linewidth 2 pointtype 7 pointsize 0.5
set linetype 3 linecolor "#045a8d" linewidth 3 pointtype 7 pointsize 0.5
set linetype 4 linecolor "#d95f02" linewidth 2 pointtype 7 pointsize 0.5
set linetype 5 linecolor "#1b9e77" linewidth 2 pointtype 7 pointsize 0.5
set linetype 6 linecolor "#7570b3" linewidth 2 pointtype 7 pointsize 0.5
plot for [column = 2:7] ARG1 using ($1 / 1e6):column with linespoints linetype column - 1 title columnheader(column)
