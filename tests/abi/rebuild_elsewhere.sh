#!/usr/bin/env bash
# rebuild_elsewhere.sh PROJECT FOLDER CMAKE_ARGUMENT...
# Builds the library of PROJECT once more, from a copy of the sources in FOLDER: other paths, another time, and the same bytes if nothing
# of them gets into the file.
set -euo pipefail
project=$1
folder=$2
shift 2

rm -rf "$folder"
mkdir -p "$folder/copy"
cp -R "$project"/{CMakeLists.txt,cmake,include,src,memory_host} "$folder/copy"
cmake -S "$folder/copy" -B "$folder/build" -G Ninja -DBTZ_DEVELOPER=OFF "$@"
cmake --build "$folder/build" --target BTZDLL -- --quiet
