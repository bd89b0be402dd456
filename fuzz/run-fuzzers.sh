#!/bin/sh
# Builds the libFuzzer targets with clang and runs each of them for a while on a corpus that
# starts from fuzz/seeds and the test fixtures. CI runs it briefly through CTest (fuzz_smoke);
# run it longer by hand:
#
#   fuzz/run-fuzzers.sh [--seconds N] [--build DIR]     (default: 300 seconds, build-fuzz)
#
# Exits 77, which CTest reports as skipped, when clang 16 with libFuzzer is not installed.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
seconds=300
build="$root/build-fuzz"
while [ $# -gt 0 ]; do
    case "$1" in
    --seconds) seconds=$2; shift 2 ;;
    --build) build=$2; shift 2 ;;
    *) echo "usage: $0 [--seconds N] [--build DIR]" >&2; exit 2 ;;
    esac
done

cxx=$(command -v clang++-16 || true)
if [ -z "$cxx" ]; then
    echo "clang++-16 is not installed: fuzzing skipped"
    exit 77
fi
probe=$(mktemp -d)
trap 'rm -rf "$probe"' EXIT
printf '#include <cstddef>\n#include <cstdint>\nextern "C" int LLVMFuzzerTestOneInput(const uint8_t*, size_t) { return 0; }\n' >"$probe/f.cpp"
if ! "$cxx" -fsanitize=fuzzer "$probe/f.cpp" -o "$probe/f" 2>/dev/null; then
    echo "libFuzzer is not installed (libclang-rt-16-dev): fuzzing skipped"
    exit 77
fi

# Clang 16 implements what libstdc++ 12 needs for std::expected but does not yet announce it.
flags="-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined -U__cpp_concepts -D__cpp_concepts=202002L"
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCMAKE_CXX_COMPILER="$cxx" -DCMAKE_CXX_FLAGS="$flags" \
    -DTAMO_FUZZ=ON -DTAMO_BUILD_TESTS=OFF -DTAMO_BUILD_BENCH=OFF >/dev/null
cmake --build "$build" --target tamo-fuzz-plist tamo-fuzz-keyedarchive tamo-fuzz-dictionary

for target in plist keyedarchive dictionary; do
    corpus="$build/corpus/$target"
    mkdir -p "$corpus"
    cp "$root"/tests/data/*.tamo* "$root"/fuzz/seeds/* "$corpus"/
    echo "== tamo-fuzz-$target for $seconds s"
    log="$build/$target.log"
    if ! "$build/bin/tamo-fuzz-$target" -max_total_time="$seconds" -max_len=65536 \
        -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="$build/$target-" \
        "$corpus" >"$log" 2>&1; then
        tail -n 40 "$log"
        echo "tamo-fuzz-$target failed; the input is kept as $build/$target-*"
        exit 1
    fi
    tail -n 12 "$log"
done
