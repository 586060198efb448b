# shellcheck shell=bash disable=SC2034 # for who sources this
# What the last line of a suite counts, "N passed, N failed", and ", N skipped" only when there are any. To be sourced by bash.
#
# Tests are counted as passed or failed. Of what is skipped it is not known how many tests it would have been: files are
# counted. A sentence "skip WHAT: N of M files: REASON" is N of them, any other, "skip WHAT: REASON", is a part of one
# and counts as one.
#
#   counts_line PASSED FAILED SKIPPED   prints such a line
#   counts_read LINE       sets counted_passed, counted_failed and counted_skipped; returns 1 when it is no such line
#   counts_skipped         prints how many the sentences of standard input say

counts_line() {
  local line="$1 passed, $2 failed"
  (($3 == 0)) || line+=", $3 skipped"
  echo "$line"
}

counts_read() {
  [[ $1 =~ ^([0-9]+)' passed, '([0-9]+)' failed'(', '([0-9]+)' skipped')?$ ]] || return
  counted_passed=${BASH_REMATCH[1]} counted_failed=${BASH_REMATCH[2]} counted_skipped=${BASH_REMATCH[4]:-0}
}

counts_skipped() {
  awk '/^skip / { sum += match($0, /: [0-9]+ of [0-9]+ files: /) ? substr($0, RSTART + 2) + 0 : 1 } END { print sum + 0 }'
}
