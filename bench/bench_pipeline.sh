#!/usr/bin/env bash
# Times one long DVD title to the "iPhone H.264 Video" settings with the
# picture in one ffmpeg with the encoder, and apart (decoded and edited in an
# ffmpeg of its own), and sets both against what the machine allows: each
# stage's processor time alone, summed, over the cores.
#   bench/bench_pipeline.sh BUILD_DIR
# BUILD_DIR holds bin/kestrove-encoder (an optimised build without sanitizers).
set -euo pipefail
build=$(cd "${1:?usage: bench_pipeline.sh BUILD_DIR}" && pwd)
encoder="$build/bin/kestrove-encoder"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
runs=${RUNS:-3}
seconds=${SECONDS_OF_TITLE:-300}

median() { sort -n | awk '{a[NR]=$1} END {print (NR % 2) ? a[(NR+1)/2] : (a[NR/2] + a[NR/2+1]) / 2}'; }
# Wall and processor seconds (user + system, children included) of a command.
measure() { /usr/bin/time -f '%e %U %S' "$@" 2>&1 >/dev/null | tail -1 | awk '{print $1, $2 + $3}'; }

echo "== Making a $seconds s NTSC 16:9 title (a busy picture with grain, AC-3 sound)"
ffmpeg -v error -f lavfi -i "testsrc2=s=720x480:r=30000/1001:d=$seconds,noise=alls=6:allf=t" \
    -f lavfi -i "sine=f=440:r=48000:d=$seconds" -target ntsc-dvd -aspect 16:9 -b:v 5000k -shortest title.mpg
cat > dvd.xml <<'XML'
<dvdauthor><vmgm/><titleset><titles><video format="ntsc" aspect="16:9" widescreen="nopanscan"/>
<pgc><vob file="title.mpg"/></pgc></titles></titleset></dvdauthor>
XML
VIDEO_FORMAT=NTSC dvdauthor -o dvd -x dvd.xml > /dev/null 2>&1
ifo=dvd/VIDEO_TS/VTS_01_0.IFO
vob=dvd/VIDEO_TS/VTS_01_1.VOB

# What the program asks of the front for this title and profile.
list=(-y -ss 0 -pgc 0 -audio_track 0 -subtitle -1 -i "$ifo" -vf scale=480:270,pad=480:320:0:24
      -b:v 1000000 -r 30000/1001 -vcodec libx264 -preset superfast -vprofile baseline -level 21
      -threads 2 -aspect 1.5 -ab 128k -ac 2 -ar 44100 -acodec libfaac)
for mode in 0 1; do
    : > "wall$mode"; : > "cpu$mode"
done
for i in $(seq "$runs"); do
    for mode in 0 1; do
        read -r wall cpu < <(KESTROVE_PICTURE_APART=$mode measure "$encoder" "${list[@]}" "out$mode.mp4")
        echo "$wall" >> "wall$mode"; echo "$cpu" >> "cpu$mode"
    done
done

echo "== Each stage alone, one after the other"
filters="bwdif=mode=send_frame:deint=interlaced,scale=480:270,pad=480:320:0:24,fps=30000/1001"
read -r _ decode < <(measure ffmpeg -nostdin -threads 1 -i "$vob" -map 0:v -vf "$filters" -f null -)
ffmpeg -v error -nostdin -threads 1 -i "$vob" -map 0:v -vf "$filters" -c:v rawvideo -f nut raw.nut
read -r _ x264 < <(measure ffmpeg -nostdin -f nut -i raw.nut -b:v 1000000 -c:v libx264 -preset superfast \
    -profile:v baseline -level 21 -threads 1 -f null -)
read -r _ sound < <(measure ffmpeg -nostdin -threads 1 -i "$vob" -map 0:a -af aresample=async=1:first_pts=0 \
    -b:a 128k -ac 2 -ar 44100 -c:a aac -f null -)
rm raw.nut
cores=$(nproc)
limit=$(echo "($decode + $x264 + $sound) / $cores" | bc -l)
printf 'decode and edit %.2f s, encode the picture %.2f s, the sound %.2f s: on %d cores at best %.2f s\n' \
    "$decode" "$x264" "$sound" "$cores" "$limit"

# SSIM on the output's own picture area, against the source at that size.
ssim() {
    ffmpeg -i "$1" -i "$vob" -lavfi "[0:v]crop=480:270:0:24,setsar=1[out];[1:v]scale=480:270,setsar=1[ref];[out][ref]ssim" \
        -f null - 2>&1 | grep -o 'All:[0-9.]*' | tail -1 | cut -d: -f2
}
echo "== $runs runs each, medians"
for mode in 0 1; do
    name=$([ "$mode" = 0 ] && echo "picture with the encoder" || echo "picture apart           ")
    wall=$(median < "wall$mode"); cpu=$(median < "cpu$mode")
    printf '%s: %.2f s wall, %.2f s processor, SSIM %s, %.0f%% above the best\n' "$name" "$wall" "$cpu" \
        "$(ssim "out$mode.mp4")" "$(echo "($wall / $limit - 1) * 100" | bc -l)"
done
printf 'apart is %.2f times as fast\n' "$(echo "$(median < wall0) / $(median < wall1)" | bc -l)"
