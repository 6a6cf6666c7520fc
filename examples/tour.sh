#!/bin/bash
# A tour of the functions: runs the tool on the sample photographs, printing every command, and puts
# the results on labelled sheets, one for each group of families. Needs ImageMagick and the DejaVu
# fonts.
#
# Usage: examples/tour.sh BUILD_DIR OUT.png   (the sheets in one; each in OUT-1.png, OUT-2.png, ...)
set -euo pipefail

if [ $# -ne 2 ]; then
  echo "usage: $0 BUILD_DIR OUT.png" >&2
  exit 2
fi
images=$(cd "$(dirname "$0")/images" && pwd)
keli=$(cd "$1" && pwd)/tools/keli
sheet=$(realpath "$2")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

# The photographs in one size, two masks, and a see-through picture for the AC4 functions.
for name in astronaut chelsea coffee camera; do
  gravity=center
  [ $name = astronaut ] && gravity=north
  convert "$images/$name.png" -resize 400x300^ -gravity $gravity -extent 400x300 $name.png
done
convert -size 400x300 xc:black -fill white -draw "circle 200,130 200,10" disc.png
convert -size 400x300 xc:white -fill black -draw "roundrectangle 24,24 375,275 40,40" frame.png
convert -size 400x300 xc:teal \( -size 400x300 radial-gradient:white-black -level 0%,60% \) \
  -alpha off -compose CopyOpacity -composite -define png:color-type=6 faded.png

panels=()
sheets=()
made=0
photograph() { panels+=(-label "$1\nthe photograph" "$1"); }

# panel "NOTE" FUNCTION ARGUMENTS...: one command, one panel.
panel() {
  local note=$1 out=$(( made++ )).png
  shift
  printf 'keli run %s -o %s\n    ' "$*" "$out"
  "$keli" run "$@" -o "$out"
  panels+=(-label "$1\n$note" "$out")
}

# Puts the panels since the last call on a sheet.
endSheet() {
  local file=${sheet%.png}-$(( ${#sheets[@]} + 1 )).png
  montage -font DejaVu-Sans -pointsize 13 -fill '#222222' -background white \
    "${panels[@]}" -tile 4x -geometry 240x180+8+6 -depth 8 "$file"
  echo "$(( ${#panels[@]} / 3 )) panels on $file"
  sheets+=("$file")
  panels=()
}

photograph astronaut.png
photograph chelsea.png
photograph coffee.png
photograph camera.png

panel "copied" keliCopy_8u_C3R chelsea.png
panel "a part copied into coffee.png" keliCopy_16s_C3R chelsea.png \
  --roi 90,40,220,180 --dst coffee.png
panel "copied where a disc is white" keliCopy_8u_C3MR astronaut.png --mask disc.png --dst coffee.png
panel "the alpha was there before" keliCopy_8u_AC4R astronaut.png --dst faded.png

panel "red channel extracted" keliCopy_8u_C3C1R astronaut.png --srcChannel 0
panel "green channel extracted" keliCopy_8u_C3C1R astronaut.png --srcChannel 1
panel "blue channel extracted" keliCopy_8u_C3C1R astronaut.png --srcChannel 2
panel "camera.png into the red channel" keliCopy_8u_C1C3R camera.png --dst coffee.png --dstChannel 0

panel "split into planes, shown joined" keliCopy_8u_C3P3R astronaut.png
panel "planes interleaved, left half" keliCopy_32f_P3C3R chelsea.png \
  --roi 0,0,200,300 --dst coffee.png
panel "red copied into green" keliCopy_8u_C3CR chelsea.png \
  --dst chelsea.png --srcChannel 0 --dstChannel 1
panel "colours only, alpha kept" keliCopy_8u_C3AC4R coffee.png --dst faded.png

panel "a colour" keliSet_8u_C3R --value 40,110,160 --size 400x300
panel "a part set" keliSet_32f_C3R --value 250,190,40 --dst coffee.png --roi 60,40,280,60
panel "set where a frame is white" keliSet_8u_C3MR \
  --value 230,90,60 --dst chelsea.png --mask frame.png
panel "green channel set to 0" keliSet_8u_C3CR --value 0 --dst chelsea.png --dstChannel 1

panel "order 2,1,0" keliSwapChannels_8u_C3R coffee.png --dstOrder 2,1,0
panel "order 1,2,0" keliSwapChannels_32f_C3R coffee.png --dstOrder 1,2,0
panel "in place, order 0,0,0" keliSwapChannels_8u_C3IR coffee.png --dstOrder 0,0,0
panel "order 2,0,1, alpha kept" keliSwapChannels_8u_AC4R coffee.png --dstOrder 2,0,1 --dst faded.png

endSheet

# A picture of half the brightness, for functions that brighten.
convert coffee.png -evaluate multiply 0.5 dark.png
photograph coffee.png
photograph chelsea.png
panels+=(-label "disc.png\nthe disc" disc.png)
panel "half of the sum" keliAdd_8u_C3RSfs coffee.png chelsea.png --scaleFactor 1
panel "a constant added, saturated" keliAddC_8u_C3RSfs coffee.png --value 90,0,0 --scaleFactor 0
panel "chelsea.png minus coffee.png" keliSub_8u_C3RSfs coffee.png chelsea.png --scaleFactor 0
panel "a constant subtracted" keliSubC_8u_C3RSfs coffee.png --value 80,80,80 --scaleFactor 0
panel "product / 256" keliMul_8u_C3RSfs coffee.png chelsea.png --scaleFactor 8
panel "brighter: times 3 / 2" keliMulC_8u_C3RSfs coffee.png --value 3,3,3 --scaleFactor 1
panel "product / 255" keliMulScale_8u_C3R coffee.png chelsea.png
panel "chelsea.png / coffee.png * 64" keliDiv_8u_C3RSfs coffee.png chelsea.png --scaleFactor -6
panel "red / 4" keliDivC_8u_C3RSfs coffee.png --value 4,1,1 --scaleFactor 0
panel "square / 256: darker middle tones" keliSqr_8u_C3RSfs coffee.png --scaleFactor 8
panel "square root * 16: brighter" keliSqrt_8u_C3RSfs dark.png --scaleFactor -4
panel "logarithm * 32" keliLn_8u_C3RSfs dark.png --scaleFactor -5
panel "bits cleared outside a disc" keliAnd_8u_C1R camera.png disc.png
panel "bits set inside a disc" keliOr_8u_C1R camera.png disc.png
panel "inverted inside a disc" keliXor_8u_C1R camera.png disc.png
panel "negative" keliNot_8u_C3R coffee.png
panel "two bits of each sample kept" keliAndC_8u_C3R coffee.png --value 192,192,192
panel "right by 2: a quarter" keliRShiftC_8u_C3R coffee.png --value 2,2,2
panel "left by 2: the lower bits" keliLShiftC_8u_C3R coffee.png --value 2,2,2
endSheet

photograph camera.png
photograph chelsea.png
photograph coffee.png
panel "darker than 90: black" keliThreshold_LTVal_8u_C1R camera.png --threshold 90 --value 0
panel "clamped at 150" keliThreshold_GT_8u_C3R chelsea.png --threshold 150,150,150
panel "clamped at 90 from below" keliThreshold_LT_8u_C3R chelsea.png --threshold 90,90,90
panel "brighter than 128: a colour" keliThreshold_GTVal_8u_C3R coffee.png \
  --threshold 128,128,128 --value 250,190,40
panel "below 70: 0, above 180: 255" keliThreshold_LTValGTVal_8u_C1R camera.png \
  --thresholdLT 70 --valueLT 0 --thresholdGT 180 --valueGT 255
panel "mask: above 120" keliCompareC_8u_C1R camera.png --value 120 --cmpOp greater
panel "mask: all channels above 100" keliCompareC_8u_C3R coffee.png \
  --value 100,100,100 --cmpOp greater
panel "mask: all channels darker than the cat's" keliCompare_8u_C3R coffee.png chelsea.png \
  --cmpOp less
panel "mask: within 20 of 150" keliCompareEqualEpsC_32f_C1R camera.png --value 150 --eps 20
panel "histogram, 256 bins a channel" keliHistogramEven_8u_C3R chelsea.png \
  --nLevels 257 --lowerLevel 0 --upperLevel 256
panel "histogram, 32 bins" keliHistogramEven_8u_C1R camera.png \
  --nLevels 33 --lowerLevel 0 --upperLevel 256
endSheet

photograph chelsea.png
photograph camera.png
photograph coffee.png
panel "60..200 scaled to 0..255" keliScale_32f8u_C3R coffee.png --vMin 60 --vMax 200
panel "a border of one colour" keliCopyConstBorder_8u_C3R chelsea.png \
  --size 480x380 --topBorderHeight 40 --leftBorderWidth 40 --value 250,190,40
panel "the edges repeated" keliCopyReplicateBorder_8u_C3R coffee.png --roi 60,40,280,220 \
  --size 400x300 --topBorderHeight 40 --leftBorderWidth 60
panel "a part, periodically" keliCopyWrapBorder_32s_C1R camera.png --roi 150,40,110,90 \
  --size 400x300 --topBorderHeight 100 --leftBorderWidth 140
panel "mirrored left to right" keliMirror_8u_C3R chelsea.png --flip vertical
panel "upside down" keliMirror_8u_C3R coffee.png --flip horizontal
panel "both, in place" keliMirror_8u_C3IR chelsea.png --flip both
panel "rotated, cubic" keliRemap_8u_C3R chelsea.png --map rotate:25 --interpolation cubic --dst coffee.png
panel "a wave, linear" keliRemap_8u_C3R coffee.png --map wave:14:80 --interpolation linear
panel "box of 3 x 3" keliFilterBox_8u_C3R coffee.png --maskSize 3x3
panel "box of 25 x 25" keliFilterBox_8u_C3R coffee.png --maskSize 25x25
panel "box of 41 x 2: along rows" keliFilterBox_32f_C3R coffee.png --maskSize 41x2
panel "maximum of 9 x 9" keliFilterMax_8u_C3R chelsea.png --maskSize 9x9
panel "minimum of 9 x 9" keliFilterMin_8u_C3R chelsea.png --maskSize 9x9
panel "eroded, 3 x 3" keliErode3x3_8u_C1R camera.png
panel "dilated by a disc of 15" keliDilate_8u_C1R camera.png --maskSize 15x15 --pMask ellipse
panel "eroded by a cross of 21" keliErode_8u_C3R coffee.png --maskSize 21x21 --pMask cross
endSheet

# The three channels of a picture in a space.
space() {
  printf 'keli run keliRGBTo%s_8u_C3R %s -o %s.png\n' "$1" "$2" "$1"
  "$keli" run "keliRGBTo$1_8u_C3R" "$2" -o "$1.png"
  local channel=0
  for name in $3; do
    "$keli" run keliCopy_8u_C3C1R "$1.png" --srcChannel $channel -o "$1-$channel.png"
    panels+=(-label "keliRGBTo$1_8u_C3R\n$name" "$1-$channel.png")
    channel=$(( channel + 1 ))
  done
}
photograph astronaut.png
panel "gray" keliRGBToGray_8u_C3C1R astronaut.png
panel "gray of red alone" keliColorToGray_8u_C3C1R astronaut.png --weights 1,0,0
panel "gray with green twice, blue away" keliColorToGray_8u_C3C1R astronaut.png --weights 0,2,-1
space HSV astronaut.png "hue saturation value"
panel "and back" keliHSVToRGB_8u_C3R HSV.png
space HLS astronaut.png "hue lightness saturation"
panel "and back" keliHLSToRGB_8u_C3R HLS.png
space YCbCr astronaut.png "Y Cb Cr"
panel "and back" keliYCbCrToRGB_8u_C3R YCbCr.png
space YUV astronaut.png "Y U V"
panel "and back" keliYUVToRGB_8u_C3R YUV.png
space YCC astronaut.png "Y C1 C2"
panel "and back" keliYCCToRGB_8u_C3R YCC.png
space XYZ astronaut.png "X Y Z"
panel "and back" keliXYZToRGB_8u_C3R XYZ.png
space LUV astronaut.png "L u v"
panel "and back" keliLUVToRGB_8u_C3R LUV.png
endSheet

# Parts of the photographs that the sheet shows pixel by pixel.
convert camera.png -crop 240x180+60+20 +repage gray.png
convert coffee.png -crop 240x180+80+40 +repage cup.png
panels+=(-label "gray.png\na part of camera.png" gray.png -label "cup.png\na part of coffee.png" cup.png)
for dither in floydSteinberg jarvis stucki bayer; do
  panel "2 levels, $dither" keliReduceBits_8u_C1R gray.png --noise 0 --dither $dither --levels 2
done
for dither in floydSteinberg bayer; do
  panel "4 levels, $dither" keliReduceBits_8u_C1R gray.png --noise 0 --dither $dither --levels 4
  panel "4 levels a channel, $dither" keliReduceBits_8u_C3R cup.png \
    --noise 0 --dither $dither --levels 4
done
panel "2 levels, jarvis, noise 50 %" keliReduceBits_8u_C1R gray.png \
  --noise 50 --dither jarvis --levels 2
panel "4 levels, bayer, noise 100 %" keliReduceBits_8u_C3R cup.png \
  --noise 100 --dither bayer --levels 4
endSheet

photograph camera.png
printf 'keli_transforms camera.png spectrum.png low.png blocks.png\n'
"$(dirname "$keli")/keli_transforms" camera.png spectrum.png low.png blocks.png
panels+=(-label "keliDFTFwd_CToC_32fc_C1R\nthe logarithm of the spectrum" spectrum.png
         -label "keliDFTInv_PackToR_32f_C1R\nlow frequencies alone" low.png
         -label "keliDCT8x8FwdLS, InvLSClip\nblocks of few coefficients" blocks.png)
endSheet

# Numbers of pictures are printed.
for call in "keliMean_8u_C3R chelsea.png" "keliMinMax_8u_C1R camera.png" \
    "keliMaxIndx_8u_C1R camera.png" "keliNormRel_L2_8u_C3R coffee.png chelsea.png" \
    "keliQualityIndex_8u32f_C1R camera.png disc.png" \
    "keliCountInRange_8u_C1R camera.png --lowerBound 0 --upperBound 60"; do
  printf 'keli run %s\n' "$call"
  # shellcheck disable=SC2086
  "$keli" run $call | sed 's/^/    /'
done

convert -background white "${sheets[@]}" -append "$sheet"
