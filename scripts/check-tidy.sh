#!/usr/bin/env bash
# Runs clang-tidy over all sources of this platform. Needs the compile commands of a build without
# precompiled headers: clang can't read another compiler's, and they would hide a missing include.
# The rooms that calculate get every check of .clang-tidy. The rest only get those that find what
# no warning does: every check walks the toolkit's headers again, which takes most of the time.
set -euo pipefail
build=$1
calculating=(src/{base,prices,engine,answers,documents,online}/'*.cpp')
elsewhere="-*,
  bugprone-argument-comment, bugprone-branch-clone, bugprone-copy-constructor-init,
  bugprone-integer-division, bugprone-parent-virtual-call,
  bugprone-redundant-branch-condition, bugprone-string-*, bugprone-undelegated-constructor,
  bugprone-use-after-move, bugprone-virtual-near-miss,
  cppcoreguidelines-init-variables, cppcoreguidelines-pro-type-cstyle-cast,
  cppcoreguidelines-special-member-functions,
  misc-redundant-expression, misc-unused-parameters,
  modernize-loop-convert, modernize-make-*, modernize-use-auto, modernize-use-default-member-init,
  modernize-use-emplace, modernize-use-equals-*, modernize-use-override,
  performance-for-range-copy, performance-implicit-conversion-in-loop, performance-inefficient-*,
  performance-noexcept-move-constructor,
  performance-unnecessary-copy-initialization,
  readability-braces-around-statements, readability-const-return-type,
  readability-container-contains, readability-else-after-return,
  readability-function-cognitive-complexity,
  readability-inconsistent-declaration-parameter-name, readability-isolate-declaration,
  readability-make-member-function-const, readability-qualified-auto,
  readability-redundant-member-init, readability-redundant-string-*, readability-simplify-*,
  readability-static-accessed-through-instance,
  -performance-inefficient-string-concatenation"

# tidy CHECKS PATHSPEC...: largest files first, so that no core is left with one at the end.
tidy() {
  local checks=$1
  shift
  git ls-files -z "$@" | xargs -0 ls -S | xargs -d '\n' -n 1 -P "$(nproc)" \
    clang-tidy -p "$build" --checks="$checks" --extra-arg=-Wno-unknown-warning-option --quiet
}

tidy "" "${calculating[@]}" ':!src/base/region_uk.cpp'
tidy "$elsewhere" 'src/*.cpp' "${calculating[@]/#/:!}" ':!src/platform/windows/*'
