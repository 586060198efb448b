# shellcheck shell=bash
# Builds what the tests run of the module for the appliance's own engine and processor, in CHECKOUT/build-powerpc-tests. That is
# a folder of their own: build-powerpc belongs to who builds for a device, and keeps the engine and the libraries that he has
# named. To be sourced by bash.
#
#   powerpc_build CHECKOUT [TARGET...]   those targets, or all; a second one waits, and finds what the first has built
#   powerpc_configure CHECKOUT           no more than that

powerpc_build() (
  mkdir -p "$1/build-powerpc-tests" && exec {lock}>>"$1/build-powerpc-tests/.building" && flock "$lock" &&
    powerpc_configure "$1" && cd "$1" &&
    cmake --build --preset powerpc-tests --parallel "$(nproc)" ${2:+--target "${@:2}"}
)

powerpc_configure() (cd "$1" && cmake --preset powerpc-tests)
