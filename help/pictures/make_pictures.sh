#!/bin/sh
# Makes the pictures of the help again: make_pictures.sh SIRDS, where SIRDS is the built command line.
# Drawings are twice the size at which they are shown, stereograms are shown dot for dot.
# Needs rsvg-convert and ImageMagick's convert.
set -eu
sirds=$(realpath "$1")
cd "$(dirname "$0")"
work=$(mktemp -d)
trap 'rm -r "$work"' EXIT

for drawing in eyes depth; do
  rsvg-convert --zoom 2 "$drawing.svg" -o "$drawing@2x.png"
done

# The markers stand larger than the program draws them, on a strip of their own, 100 pixels apart.
finish() {
  convert -size 520x26 +antialias xc:'#f7f5ef' -fill '#ffd92e' -stroke black \
    -draw 'rectangle 204,7 216,19' -draw 'rectangle 304,7 316,19' "$work/strip.png"
  convert "$work/strip.png" "$work/$1.png" -append -strip +dither -colors 256 "PNG8:$1.png"
  "$sirds" reveal "$work/$1.png" -o "$work/found.png" -q
  convert "$work/found.png" -filter point -resize 50% -strip -colors 32 "PNG8:$1-found.png"
}

rsvg-convert hidden-star.svg -o "$work/depth.png"
"$sirds" make "$work/depth.png" -o "$work/star.png" -q --no-markers --depth-by brightness \
  --scan left-to-right --zmax 5900 --pattern 16
finish star

"$sirds" make 'figure:Gaussian hills' -o "$work/hills.png" -q --no-markers \
  --width 520 --height 340 --pattern 14
finish hills
