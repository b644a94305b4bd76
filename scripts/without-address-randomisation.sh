#!/usr/bin/env bash
# Runs a command with a fixed memory layout where the system allows it: the thread sanitizer of older compilers stops at
# once ("unexpected memory mapping") on kernels that spread mappings more widely than it knows.
set -euo pipefail

if setarch "$(uname -m)" --addr-no-randomize true 2>/dev/null; then
  exec setarch "$(uname -m)" --addr-no-randomize "$@"
fi
exec "$@"
