# shellcheck shell=bash
# All that the launcher's scripts tell each other, besides COMMAND: in the environment, from one to the next, in the
# order launch, surroundings, build_root, run_services; or launch, in_place, run_services. An empty one is a "no".

# Set by ./run, about how it was called. Whoever starts launch by itself is told of ./run:
export APPLIANCE_CALLED_NAME=${APPLIANCE_CALLED_NAME:-./run}                # the command
export APPLIANCE_CALLED_STATE=${APPLIANCE_CALLED_STATE-}                    # the folder that --state named, as it was named
export APPLIANCE_CALLED_STATE_OF_ROOT=${APPLIANCE_CALLED_STATE_OF_ROOT-}    # the one that root's would have without --state
export APPLIANCE_CALLED_REST=${APPLIANCE_CALLED_REST-}                      # the other words, quoted for a shell, each behind a blank

# Set by launch, who still knows the user:
export APPLIANCE_CALLED_IN_PLACE=${APPLIANCE_CALLED_IN_PLACE-} # the same command with --in-place, as root

# Set by launch, from its options:
export APPLIANCE_BUILD=${APPLIANCE_BUILD-}       # the folder of what was built
export APPLIANCE_WORK=${APPLIANCE_WORK-}         # the folder in which others are mounted
export APPLIANCE_STATE=${APPLIANCE_STATE-}       # the folder that is /home/embedded; none: it goes with the appliance
export APPLIANCE_PORT=${APPLIANCE_PORT-}         # where the machine has the web service, at 127.0.0.1; none: nowhere
export APPLIANCE_TLS_PORT=${APPLIANCE_TLS_PORT-} # the same by HTTPS
export APPLIANCE_SERVE=${APPLIANCE_SERVE-}       # a folder that is served under /extra/
export APPLIANCE_IN_PLACE=${APPLIANCE_IN_PLACE-} # "yes": no private root, no network of its own

# Set by launch, numbers of open files:
export APPLIANCE_STATE_LOCK=${APPLIANCE_STATE_LOCK-}         # holds the state folder; build_root lets go of it
export APPLIANCE_PROCESS_REPORT=${APPLIANCE_PROCESS_REPORT-} # where run_services tells launch APPLIANCE_PROCESS

# Set by build_root:
export APPLIANCE_PROCESS=${APPLIANCE_PROCESS-} # the first process of the appliance, as the machine numbers it

# Set by run_services, and the only one that COMMAND sees:
#   APPLIANCE_WEB   where COMMAND finds the web service, ADDRESS or ADDRESS:PORT
