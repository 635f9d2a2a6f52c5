# SPDX-License-Identifier: Zlib
# What tests of sound share: a sound server, recordings of it, and what the game has to be heard doing. Sourced after
# common.sh, with `probe`, the ear (SoundProbe.cpp).
for tool in pulseaudio parec pactl; do
    if ! command -v "$tool" >/dev/null; then
        echo "skipped: $tool is not installed"
        exit 77
    fi
done

# ---- The sound server: a sink that keeps time and plays nowhere, with a socket of its own ----

socket=$(mktemp -d) # a short path: sockets have no room for a long one
remove_socket() { rm -rf "$socket"; }
endings+=(remove_socket)
export PULSE_SERVER=unix:$socket/pulse PULSE_COOKIE=$work/cookie HOME=$work
server=""
start_server() {
    pulseaudio -n --daemonize=no --exit-idle-time=-1 --use-pid-file=no --disable-shm=yes --log-target=stderr \
        --load="module-null-sink sink_name=null rate=44100" \
        --load="module-native-protocol-unix auth-anonymous=1 socket=$socket/pulse" >>pulseaudio.log 2>&1 &
    server=$!
    pids+=($server)
    for _ in $(seq 100); do pactl info >/dev/null 2>&1 && return || sleep 0.1; done
    echo "skipped: PulseAudio does not start here: $(tail -1 pulseaudio.log)"
    exit 77
}
stop_server() {
    kill $server
    wait $server 2>/dev/null || true
}
recorder=""
record() {
    rm -f "$1.raw"
    parec -d null.monitor --format=s16le --rate=44100 --channels=2 --latency-msec=50 >"$1.raw" 2>>parec.log &
    recorder=$!
    pids+=($recorder)
    await "nothing can be recorded" test -s "$1.raw"
}
stop_recording() {
    kill $recorder
    wait $recorder 2>/dev/null || true
}
# A root of its own: the game beside its data, with the music that is put there.
put_game() { cp "$game" "$1/velkar"; }
make_root() {
    mkdir -p "$1/soundtracks"
    put_game "$1"
    ln -s "$root/data" "$1/data"
}

# ---- Message boxes and the race ----

# The message boxes that are open, by window.
boxes() { xwininfo -root -tree 2>/dev/null | sed -n 's/^ *\(0x[0-9a-f]*\) "Err[^"]*":.*/\1/p'; }
no_box() { [ -z "$(boxes)" ]; }
has_box() { [ "$(boxes | wc -w)" = 1 ]; }
# What the box says, as a sum over the picture of its upper part. Its window's number says nothing: the next box may
# have the same.
saying() { import -window "$1" -crop 100%x40%+0+0 +repage rgb:- 2>>import.log | md5sum; }
# Presses Return on the box and looks a little later: a window that has just come may not yet listen.
answered() {
    says "$box" "$text" || return 0
    xdotool windowfocus "$box" key Return 2>>xdotool.log || true
    for _ in $(seq 20); do says "$box" "$text" && sleep 0.05 || return 0; done
    return 1
}
says() { [ "$(boxes)" = "$1" ] && [ "$(saying "$1")" = "$2" ]; }
has_new_box() { has_box && box=$(boxes) && new=$(saying "$box") && [ "$new" != "$text" ]; }
# Starts the game and waits until its menu stands there as `menu.png`.
start_with_menu() {
    [ -e menu.bmp ] || expect_pictures <<<$'load\nwindow menu.bmp'
    start_game
    await_picture menu menu.bmp
}
is_racing() { differs "$1.png" menu.png 50000; }
# Through the menu to the end.
leave_race() {
    xdotool key Escape
    leave_menu
}
leave_menu() {
    await "the menu does not come" menu_is_over_race
    no_box || fail "leaving the race brings a message"
    click 300 268
    await_end Esci
}

# ---- The engine ----

# A race through two gear changes without music: the step follows the game's own, without gaps. The race runs, in the
# menu, at the end.
hear_engine() {
    make_root engine
    # A car that gathers speed slowly and rolls to a stop by itself: its step changes little within the stretch of
    # sound that is compared.
    rm engine/data
    cp -rs "$root/data" engine/data
    local user=engine/data/maps/map_01/p1.player
    rm $user
    awk -F, -v OFS=, '{ $4 = 0.016; $6 = 0.0025; print }' "$root/${user#engine/}" >$user
    # The step after each tick of a race in which the accelerator goes down.
    {
        printf 'load\nclick cSTART\ngame 140\nkey down 38\n'
        for _ in $(seq 130); do printf 'game\npeek audio.Step\n'; done
    } >steps.drive
    "$drive" --root engine steps.drive | sed -n 's/.*"value": \([0-9.]*\).*/\1/p' >steps.txt
    game=$work/engine/velkar
    until hear_a_start; do
        # A machine that is busy elsewhere stops the sound for a moment; what the game does wrong is wrong each time.
        starts=$((starts + 1))
        [ $starts -lt 3 ] || fail "the engine is not heard as it should be in $starts starts"
        leave_menu
    done
}
starts=0
hear_a_start() {
    record engine
    start_with_menu
    click 300 169
    until_shown racing "the race does not show" is_racing racing
    sleep 3.5
    xdotool keydown Up
    sleep 6
    xdotool keyup Up
    xdotool key Escape
    sleep 0.5
    stop_recording
    if ! "$probe" engine engine.raw "$root/data/sounds/engine_01.pcm" steps.txt >engine.txt; then
        tail -40 engine.txt
        echo "the engine does not follow the speed"
        return 1
    fi
    tail -1 engine.txt
    "$probe" gap engine.raw 46 || { echo "the engine's sound has gaps"; return 1; }
}
# The menu is silent; the race that goes on is heard again.
hear_menu_and_race() {
    await "the menu does not come" menu_is_over_race
    sleep 0.5 # what was on its way to the ear
    record menu
    sleep 1.5
    stop_recording
    "$probe" silence menu.raw || fail "the menu is not silent"
    record again
    click 300 169
    sleep 2
    stop_recording
    "$probe" gap again.raw 46 || fail "the race that goes on is not heard"
}

# ---- Music: three tones and a file that is none ----

last_tone=d.wma
follows() {
    local previous="" tone
    while read -r tone; do
        [ -z "$previous" ] || [ "$tone" = $(((previous + 1) % 3)) ] || return 1
        previous=$tone
    done
}
# hears COUNT NAME: in the recording, so many of the three tones or more one after another; they are in NAME.txt.
hears() { "$probe" tones "$2.raw" 500 800 1300 >"$2.txt" && [ "$(wc -l <"$2.txt")" -ge "$1" ]; }
# Each goes over into the next by itself, and what is no music is passed over without a word. The menu shows at the end.
hear_music() {
    make_root music
    "$probe" write-tone music/soundtracks/a.mp3 500 3
    "$probe" write-tone music/soundtracks/b.mp3 800 3
    printf 'Tanti auguri\n' >music/soundtracks/c.mp3
    "$probe" write-tone music/soundtracks/$last_tone 1300 3
    game=$work/music/velkar
    record music
    start_with_menu
    await "the music does not go on from track to track" hears 4 music
    stop_recording
    echo "tones: $(tr '\n' ' ' <music.txt)"
    follows <music.txt || fail "the tracks do not follow one another"
    no_box || fail "a file that is no music brings a message"
}
# The key changes the music: four presses in four seconds, where a track alone takes three. They begin when a track has
# just begun, so that none of them meets a track's own end.
hear_key() {
    click 300 169
    until_shown racing "the race does not show" is_racing racing
    record key
    await "the music does not go on in the race" hears 2 key
    local before press
    before=$(wc -l <key.txt)
    for press in 1 2 3 4; do
        xdotool key Tab
        sleep 1
    done
    stop_recording
    hears $((before + 4)) key || fail "the key does not change the music: $(tr '\n' ' ' <key.txt)"
    echo "tones with the key: $(tr '\n' ' ' <key.txt)"
    follows <key.txt || fail "the key does not play the next track"
}

# ---- A machine without sound ----

# Nine messages, then the race.
read_nine_messages() {
    start_with_menu
    click 300 169
    local message box="" new="" text=""
    for message in 1 2 3 4 5 6 7 8 9; do
        await "message $message of nine does not come" has_new_box
        text=$new
        await "message $message stays" answered
    done
    until_shown racing "the race does not show after nine messages" is_racing racing
    sleep 1
    no_box || fail "there is a tenth message"
    leave_race
}
