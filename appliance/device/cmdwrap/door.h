/* What the command wrapper and the service behind it agree on. The wrapper sends one packet: the words of the
   command, each with the zero that ends it, and with them its standard output and standard error. It gets
   back one packet, the command's wait status. */
#ifndef CMDWRAP_DOOR_H
#define CMDWRAP_DOOR_H

/* Is there only where the web service has no rights of its own. */
#define DOOR "/run/appmanager/door"

/* No right command is that long. It fits into one packet with what the kernel adds. */
enum { LongestCommand = 160 * 1024, PassedDescriptors = 2 };

/* as a shell puts them */
enum ExitStatus {
  WrongUsage = 2,
  CannotBeRun = 126,
  NoSuchProgram = 127,
};

#endif
