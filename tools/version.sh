# shellcheck shell=bash disable=SC2034 # for who sources this
# Sets NETWORK_VERSION to the module's, of which the packages are; to be sourced by bash with CHECKOUT set.
NETWORK_VERSION=$(sed -n 's/^project(network VERSION \([0-9.]*\) .*/\1/p' "$CHECKOUT/CMakeLists.txt")
