set terminal pngcairo size 800,600
set output "g.png"
set datafile separator ","
set size square
plot "o.csv" using 2:3 with lines title "orbit"
