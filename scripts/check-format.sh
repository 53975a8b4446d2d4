#!/usr/bin/env bash
# Fails if clang-format would change a file.
set -euo pipefail
git ls-files -z '*.h' '*.cpp' | xargs -0 clang-format --dry-run --Werror
