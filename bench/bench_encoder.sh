#!/usr/bin/env bash
# Times the encoder front against stock ffmpeg, and one DVD title to the
# "iPhone H.264 Video" settings against one stock ffmpeg doing the same.
#   bench/bench_encoder.sh BUILD_DIR
# BUILD_DIR holds bin/kestrove-encoder (an optimised build without sanitizers).
set -euo pipefail
build=$(cd "${1:?usage: bench_encoder.sh BUILD_DIR}" && pwd)
encoder="$build/bin/kestrove-encoder"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
runs=${RUNS:-5}

now() { date +%s.%N; }
median() { sort -n | awk '{a[NR]=$1} END {print (NR % 2) ? a[(NR+1)/2] : (a[NR/2] + a[NR/2+1]) / 2}'; }
timed() { local t0 t1; t0=$(now); "$@" > /dev/null 2>&1; t1=$(now); echo "$t1 - $t0" | bc -l; }
# Processor seconds (user + system) of a command and its children: steadier than wall time on a busy machine.
cputime() { /usr/bin/time -f '%U %S' "$@" 2>&1 >/dev/null | tail -1 | awk '{print $1 + $2}'; }

ffmpeg -v error -f lavfi -i testsrc2=s=640x480:r=25:d=20 -f lavfi -i sine=f=440:d=20 \
    -c:v mpeg4 -q:v 3 -c:a mp2 -shortest source.mkv
# compare NAME FRONT-ARGS... -- STOCK-ARGS...: medians of wall and processor time.
compare() {
    local name=$1; shift
    local front=() stock=()
    while [ "$1" != -- ]; do front+=("$1"); shift; done; shift
    stock=("$@")
    rm -f stock.txt front.txt stock-cpu.txt front-cpu.txt
    for i in $(seq "$runs"); do
        timed ffmpeg "${stock[@]}" >> stock.txt
        timed "$encoder" "${front[@]}" >> front.txt
        cputime ffmpeg "${stock[@]}" >> stock-cpu.txt
        cputime "$encoder" "${front[@]}" >> front-cpu.txt
    done
    local s f
    s=$(median < stock.txt); f=$(median < front.txt)
    printf '%s, wall: stock ffmpeg median %.3f s, kestrove-encoder median %.3f s, overhead %+.2f%%\n' \
        "$name" "$s" "$f" "$(echo "($f - $s) / $s * 100" | bc -l)"
    s=$(median < stock-cpu.txt); f=$(median < front-cpu.txt)
    printf '%s, processor: stock ffmpeg median %.3f s, kestrove-encoder median %.3f s, overhead %+.2f%%\n' \
        "$name" "$s" "$f" "$(echo "($f - $s) / $s * 100" | bc -l)"
}
echo "== Encoder front against stock ffmpeg: 20 s of 640x480 to MPEG-4 (+ AAC), $runs runs each"
# Picture alone: the front runs one ffmpeg with the same list, so this is its own cost.
compare "picture only" \
    -y -ss 0 -i source.mkv -vf scale=640:480 -b:v 1200000 -r 25 -vcodec mpeg4 -threads 2 -aspect 1.33333 \
    -an out-front.mp4 -- \
    -nostdin -y -i source.mkv -vf scale=640:480 -map 0:v:0? -b:v 1200000 -r 25 -c:v mpeg4 -threads 2 \
    -aspect 1.33333 -an out-stock.mp4
# With sound the front encodes it in a second ffmpeg beside the picture's.
compare "picture and sound" \
    -y -ss 0 -i source.mkv -vf scale=640:480 -b:v 1200000 -r 25 -vcodec mpeg4 -threads 2 -aspect 1.33333 \
    -ab 128k -ac 2 -ar 44100 -acodec libfaac out-front.mp4 -- \
    -nostdin -y -i source.mkv -vf scale=640:480 -map 0:v:0? -map 0:a:0? -b:v 1200000 -r 25 -c:v mpeg4 \
    -threads 2 -aspect 1.33333 -b:a 128k -ac 2 -ar 44100 -c:a aac out-stock.mp4

echo "== One DVD title (60 s, PAL) to 480x320 H.264 1000 kbit/s + AAC 128 kbit/s"
ffmpeg -v error -f lavfi -i testsrc2=s=720x576:r=25:d=60 -f lavfi -i sine=f=440:r=48000:d=60 \
    -target pal-dvd -b:v 4000k -shortest title.mpg
cat > dvd.xml <<'XML'
<dvdauthor><vmgm/><titleset><titles><pgc><vob file="title.mpg"/></pgc></titles></titleset></dvdauthor>
XML
VIDEO_FORMAT=PAL dvdauthor -o dvd -x dvd.xml > /dev/null 2>&1
ifo=dvd/VIDEO_TS/VTS_01_0.IFO
ours=(-y -ss 0 -pgc 0 -audio_track 0 -subtitle -1 -i "$ifo" -vf scale=480:320 -b:v 1000000 -r 25
      -vcodec libx264 -preset superfast -vprofile baseline -threads 2 -aspect 1.5 -ab 128k -ac 2 -ar 44100
      -acodec libfaac ours.mp4)
stock=(-nostdin -y -i title.mpg -vf scale=480:320 -b:v 1000000 -r 25 -c:v libx264 -preset superfast
       -profile:v baseline -threads 2 -aspect 1.5 -b:a 128k -ac 2 -ar 44100 -c:a aac stock.mp4)
for i in $(seq "$runs"); do
    timed "$encoder" "${ours[@]}" >> ours.txt
    timed ffmpeg "${stock[@]}" >> stock.txt
done
ours_t=$(median < ours.txt); stock_t=$(median < stock.txt)
ssim() {
    ffmpeg -i "$1" -i title.mpg -lavfi "[1:v]scale=480:320,setsar=1[ref];[0:v]setsar=1[out];[out][ref]ssim" \
        -f null - 2>&1 | grep -o 'All:[0-9.]*' | tail -1
}
printf 'kestrove-encoder: %.2f s, %s bytes, SSIM %s\n' "$ours_t" "$(stat -c %s ours.mp4)" "$(ssim ours.mp4)"
printf 'stock ffmpeg:     %.2f s, %s bytes, SSIM %s\n' "$stock_t" "$(stat -c %s stock.mp4)" "$(ssim stock.mp4)"
printf 'medians of %s runs; wall time ratio (ours / stock): %.2f\n' "$runs" "$(echo "$ours_t / $stock_t" | bc -l)"
