#!/usr/bin/env bash
# clang-format is law.
set -euo pipefail
git ls-files -z '*.h' '*.cpp' | xargs -0 clang-format --dry-run --Werror
