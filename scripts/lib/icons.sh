#!/bin/bash
# Fetches the icon set that the program's icons are taken from, once, into a cache folder outside the repository.
# usage: icons.sh FOLDER    afterwards FOLDER/assets holds the drawings and FOLDER/LICENSE their licence
set -euo pipefail

package="@phosphor-icons/core"
version="2.1.1"
folder="${1:?usage: icons.sh FOLDER}"

if [[ -d "$folder/assets/regular" && -d "$folder/assets/fill" ]]; then
    exit 0
fi
if ! command -v npm >/dev/null; then
    echo "icons.sh: npm is missing; install it and try again" >&2
    exit 1
fi

mkdir -p "$(dirname "$folder")"
scratch="$(mktemp -d "$folder.XXXXXX")"
trap 'rm -rf "$scratch"' EXIT
archive="$(cd "$scratch" && npm pack --silent "$package@$version")"
tar -xzf "$scratch/$archive" -C "$scratch" package/LICENSE package/package.json package/assets/regular package/assets/fill
rm -rf "$folder"
mv "$scratch/package" "$folder"
