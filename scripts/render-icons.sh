#!/usr/bin/env bash
# Renders the PNG icons that the install puts beside the scalable one, from
# src/platform/dist/tessarondel.svg. Run it after changing the SVG and commit
# the PNGs; it needs rsvg-convert (Debian package librsvg2-bin).
set -euo pipefail
cd "$(dirname "$0")/../src/platform/dist"
for size in 16 32 48 64 128 256; do
  rsvg-convert --width "$size" --height "$size" --output "icons/tessarondel-$size.png" tessarondel.svg
done
