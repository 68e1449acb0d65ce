# Makes the example charts: gnuplot make-charts.gp
# The plot area lies at round places, so that values can be checked by hand: in a picture of
# 1000 x 700 pixels from (100, 84) to (950, 658), counted from the bottom left.
set terminal pngcairo size 1000,700 font "DejaVu Sans,13" linewidth 1.5 background "white"
set lmargin at screen 0.10
set rmargin at screen 0.95
set bmargin at screen 0.12
set tmargin at screen 0.94
set grid linecolor "#dddddd"
set samples 1000

set output "damped-oscillation.png"
set title "Damped oscillation" offset 0,-0.6
set xlabel "time (s)"
set ylabel "displacement (mm)"
set xrange [0:10]
set yrange [-4:6]
plot 5*exp(-x/4)*cos(2*x) title "5 exp(-t/4) cos 2t" linecolor "#1f5f8b", \
     2*sin(x) title "2 sin t" linecolor "#c0392b" dashtype 2

set output "decay-logarithmic.png"
set title "Decay" offset 0,-0.6
set xlabel "energy (keV)"
set ylabel "counts"
set logscale xy
set xrange [1:1000]
set yrange [0.1:10000]
plot 8000*x**(-1.2) title "8000 E^{-1.2}" linecolor "#1f5f8b"
unset logscale

set output "growth-semilogarithmic.png"
set title "Growth of a culture" offset 0,-0.6
set xlabel "time (h)"
set ylabel "cells per ml"
set logscale y
set xrange [0:24]
set yrange [1e3:1e9]
set format y "10^{%T}"
set xtics 4
plot 3e8/(1+3e8/5e3*exp(-0.9*x)) title "logistic growth" linecolor "#1f5f8b"
unset logscale
set format y
set xtics autofreq

# A polar chart: centre (350, 350), radius 10 at 280 pixels.
set output "cardioid-polar.png"
set terminal pngcairo size 700,700 font "DejaVu Sans,13" linewidth 1.5 background "white"
reset
set polar
set angles degrees
set lmargin at screen 0.10
set rmargin at screen 0.90
set bmargin at screen 0.10
set tmargin at screen 0.90
set xrange [-10:10]
set yrange [-10:10]
set rrange [0:10]
set grid polar 30 linetype 1 linewidth 0.7 linecolor "#bbbbbb"
unset border
unset xtics
unset ytics
set rtics 2
set ttics 0,30
set trange [0:360]
set samples 721
set title "Cardioid r = 4 + 4 cos θ"
plot 4+4*cos(t) notitle linecolor "#1f5f8b"

# A chart seen at an angle: its corners lie at (120, 90), (880, 150), (800, 610) and (190, 560);
# x runs from 0 to 8 along the bottom, y from 0 to 20 along the left edge.
set output "slanted-chart.png"
set terminal pngcairo size 1000,700 font "DejaVu Sans,13" linewidth 1.5 background "white"
reset
set lmargin at screen 0
set rmargin at screen 1
set bmargin at screen 0
set tmargin at screen 1
set xrange [0:1000]
set yrange [0:700]
unset border
unset tics
unset key
set samples 800
set parametric
cross(ax,ay,bx,by) = ax*by - ay*bx
lbx=120.; lby=90.; rbx=880.; rby=150.; rtx=800.; rty=610.; ltx=190.; lty=560.
# Where two lines, each through a point with a direction, meet.
mt(px,py,dx,dy,qx,qy,ex,ey) = cross(qx-px,qy-py,ex,ey)/cross(dx,dy,ex,ey)
mx(px,py,dx,dy,qx,qy,ex,ey) = px + dx*mt(px,py,dx,dy,qx,qy,ex,ey)
my(px,py,dx,dy,qx,qy,ex,ey) = py + dy*mt(px,py,dx,dy,qx,qy,ex,ey)
vxx = mx(lbx,lby,rbx-lbx,rby-lby,ltx,lty,rtx-ltx,rty-lty)
vxy = my(lbx,lby,rbx-lbx,rby-lby,ltx,lty,rtx-ltx,rty-lty)
vyx = mx(lbx,lby,ltx-lbx,lty-lby,rbx,rby,rtx-rbx,rty-rby)
vyy = my(lbx,lby,ltx-lbx,lty-lby,rbx,rby,rtx-rbx,rty-rby)
bx(x) = lbx + (rbx-lbx)*x/8.
by(x) = lby + (rby-lby)*x/8.
sx(y) = lbx + (ltx-lbx)*y/20.
sy(y) = lby + (lty-lby)*y/20.
px(x,y) = mx(bx(x),by(x),vyx-bx(x),vyy-by(x),sx(y),sy(y),vxx-sx(y),vxy-sy(y))
py(x,y) = my(bx(x),by(x),vyx-bx(x),vyy-by(x),sx(y),sy(y),vxx-sx(y),vxy-sy(y))
f(x) = 2 + 0.25*x*x
do for [i=0:8] { set label sprintf("%d",i) at bx(i),by(i)-18 center }
do for [i=1:4] { set label sprintf("%d",5*i) at sx(5*i)-18,sy(5*i) right }
set label "A chart photographed at an angle" at 500,660 center
set trange [0:1]
plot for [i=0:8] px(i,20*t),py(i,20*t) linecolor "#cccccc", \
     for [i=0:4] px(8*t,5*i),py(8*t,5*i) linecolor "#cccccc", \
     px(8*t,0),py(8*t,0) linecolor "black", px(0,20*t),py(0,20*t) linecolor "black", \
     px(8*t,f(8*t)),py(8*t,f(8*t)) linecolor "#1f5f8b" linewidth 2
