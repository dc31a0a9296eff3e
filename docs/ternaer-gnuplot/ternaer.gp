# Zeichnet die Fläche einer ternären Datei (*.3dd) über dem Dreieck der Zusammensetzungen:
# links räumlich, rechts von oben mit Höhenlinien.
#   gnuplot ternaer.gp                                               al-cu-mg.3dd -> ternaer.png
#   gnuplot -e "datei='x.3dd'; bild='x.png'; schritt=1" ternaer.gp   eine andere Datei
# Braucht gnuplot 5 (Debian: gnuplot-nox) und awk.

if (!exists("datei")) datei = "al-cu-mg.3dd"
if (!exists("bild")) bild = "ternaer.png"
if (!exists("neigung")) neigung = 40 # Grad über der Ebene, wie im Programm
if (!exists("drehung")) drehung = 125 # Grad, wie im Programm

# Die drei Symbole und die Einheit stehen in der Kopfzeile.
kopf = system("head -n 1 ".datei." | tr -d '\\r' | iconv -f CP1252 -t UTF-8")
symbol(k) = word(kopf, 2 * k - 1)
einheit = word(kopf, 7)

# Die Datei hat je Anteil der ersten Komponente eine Zeilenfolge, jede um einen Punkt kürzer als die vorige. Für
# gnuplot wird ein Rechteckgitter daraus: eine Leerzeile hinter jede Folge, der letzte Punkt wiederholt bis zur vollen
# Länge.
gitter = "< awk -F '\\t' 'function ende() { for (; punkte < voll; ++punkte) print letzter; print \"\" }" \
    . " { sub(/\\r$/, \"\") } NR == 1 { next }" \
    . " folge != \"\" && $1 != folge { if (!voll) voll = punkte; ende(); punkte = 0 }" \
    . " { folge = $1; letzter = $0; ++punkte; print } END { ende() }' ".datei

# Ecken: erste Komponente links, zweite rechts, dritte oben; der Schwerpunkt liegt im Ursprung.
hoehe = sqrt(3) / 2
ort_x(a, b, c) = (b - a) / 200.0
ort_y(a, b, c) = hoehe * (c / 100.0 - 1 / 3.0)

set zero 0 # auch 1e-29 ist eine Zahl
stats gitter using 4 nooutput
unten = STATS_min
spanne = STATS_max - STATS_min
if (!exists("schritt")) schritt = 0.5 # von Höhenlinie zu Höhenlinie, in der Einheit der Größe
ort_z(v) = 0.6 * (v - unten) / spanne # das 0,6-fache der Seitenlänge

set terminal pngcairo size 1300, 620 font "DejaVu Sans,11"
set output bild
set decimalsign ","
set palette defined (0 "#440154", 1 "#48186a", 2 "#472d7b", 3 "#424086", 4 "#3b528b", 5 "#33638d", 6 "#2c728e", \
    7 "#26828e", 8 "#21918c", 9 "#1fa088", 10 "#28ae80", 11 "#3fbc73", 12 "#5ec962", 13 "#84d44b", 14 "#addc30", \
    15 "#d8e219", 16 "#fde725")
set cbrange [unten : unten + spanne]
set cbtics schritt
set format cb "%g ".einheit
unset key
unset border
unset xtics
unset ytics
unset ztics
set xyplane at 0
set view equal xyz
set xrange [-0.62 : 0.62]
set yrange [-0.42 : 0.71]
set zrange [0 : 0.6]
set pm3d depthorder

# Grundriss mit einer Linie je 10 at%.
do for [p = 0 : 90 : 10] {
    q = 100 - p
    set arrow from ort_x(p, q, 0), ort_y(p, q, 0), 0 to ort_x(p, 0, q), ort_y(p, 0, q), 0 nohead lc rgb (p ? "#bebebe" : "black")
    set arrow from ort_x(q, p, 0), ort_y(q, p, 0), 0 to ort_x(0, p, q), ort_y(0, p, q), 0 nohead lc rgb (p ? "#bebebe" : "black")
    set arrow from ort_x(q, 0, p), ort_y(q, 0, p), 0 to ort_x(0, q, p), ort_y(0, q, p), 0 nohead lc rgb (p ? "#bebebe" : "black")
}
ecke = 1.13
set label symbol(1) at ecke * ort_x(100, 0, 0), ecke * ort_y(100, 0, 0), 0 center font ",14"
set label symbol(2) at ecke * ort_x(0, 100, 0), ecke * ort_y(0, 100, 0), 0 center font ",14"
set label symbol(3) at ecke * ort_x(0, 0, 100), ecke * ort_y(0, 0, 100), 0 center font ",14"

erste = schritt * ceil(unten / schritt) # unterste Höhenlinie

set multiplot

set origin 0.0, 0.0
set size 0.53, 1.0
unset colorbox
set view 90 - neigung, (720 - drehung) % 360, 1.35
set contour surface
set cntrparam levels incremental ort_z(erste), 0.6 * schritt / spanne, 0.6
set cntrlabel onecolor
splot gitter using (ort_x($1, $2, $3)):(ort_y($1, $2, $3)):(ort_z($4)):4 with pm3d nocontour, \
    "" using (ort_x($1, $2, $3)):(ort_y($1, $2, $3)):(ort_z($4)) with lines nosurface lc rgb "black"

set origin 0.5, 0.0
set size 0.5, 1.0
set colorbox
set view map scale 1
splot gitter using (ort_x($1, $2, $3)):(ort_y($1, $2, $3)):(ort_z($4)):4 with pm3d nocontour, \
    "" using (ort_x($1, $2, $3)):(ort_y($1, $2, $3)):(ort_z($4)) with lines nosurface lc rgb "black"

unset multiplot
