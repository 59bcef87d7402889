#!/usr/bin/env bash
# Plays the two tours, undrawn, under valgrind: no wrong access, and nothing lost at the end.
# Arguments: the player, and the folder of the samples.
set -euo pipefail
player=$1
samples=$2
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
valgrind --quiet --leak-check=full --show-leak-kinds=definite,indirect,possible \
  --errors-for-leak-kinds=definite,indirect,possible --error-exitcode=9 \
  "$player" --home "$home" "$samples/tour.scn" "$samples/configuration.scn"
