# Functions to source: they run the sample hosts under Wine through whole questions, and demand what a host reads. Whoever
# sources this has set root, and calls prepare_samples first.

fail() { echo "$(basename "$0"): $*"; exit 1; }
windows_path() { echo "Z:${1//\//\\}"; }

# prepare_samples 32|64: for programs of so many bits; what they leave is removed at the end.
prepare_samples() {
    case ${1:-} in
    32) system='C:\windows\syswow64' processor=i686 ;;
    64) system='C:\windows\system32' processor=x86_64 ;;
    *) echo "$(basename "$0") 32|64" >&2; exit 2 ;;
    esac
    work=$(mktemp -d)
    trap 'rm -rf "$work"' EXIT
    folder=$(windows_path "$work")
    learner="$system\\cscript.exe //nologo $(windows_path "$root/tests/library/learner.vbs")"
    "$root/tests/win32/used-office" >/dev/null || fail "no settings of Office"
}

# step CODE NAME COMMAND...: a program under Wine that must end with an exit code within a time; prints what it says.
step() {
    local expected=$1 name=$2 status
    shift 2
    "$root/tests/win32/bounded-wine" 120 "$@" | tr -d '\r' | tee "$work/said"
    status=${PIPESTATUS[0]}
    [[ $status == "$expected" ]] || fail "$name ended with $status instead of $expected"
}
expect() { grep -qE "$1" "$work/said" || fail "no line '$1'"; }
forbid() { ! grep -qE "$1" "$work/said" || fail "a line '$1'"; }
expect_closed() { expect '^Closed: PowerPoint ended is (True|-1), window 0$'; }
# shellcheck disable=SC2086 # a command of several words
deliver() { step 0 "the course's delivery" $learner deliver "$1" "$folder"; }

# question NUMBER GESTURES NAME COMMAND...: a host that runs a question to its end, the learner doing one thing for each attempt
# (GESTURE,GESTURE for two).
question() {
    local number=$1 name=$3 gestures
    IFS=, read -ra gestures <<<"$2"
    shift 3
    deliver "$number"
    step 0 "$name, question $number, ${gestures[*]}" "$@" "$number" "$folder" "${gestures[@]/#/"$learner "}"
    forbid '^Error'
    expect "^Question $number is open.*, window [1-9][0-9]*\$"
    expect_closed
}

# passes NAME COMMAND...: what a host must say of a question passed.
passes() {
    question 314 draw "$@"
    expect '^Passed$'
}

# build_host FOLDER LIBRARY_BUILD: the sample in C++ as an integrator builds it, for the library of a build, with warnings as
# errors.
build_host() {
    rm -rf "$1"
    cmake -S "$root/samples/cpp" -B "$1" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$root/cmake/mingw-$processor.cmake" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS='-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror' \
        -DK73053_INCLUDE="$2/library/idl" -DK73053_LIBRARY="$2/library" >"$work/build" 2>&1 &&
        cmake --build "$1" >>"$work/build" 2>&1 || { cat "$work/build"; fail "the host in C++ does not build"; }
}
