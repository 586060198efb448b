// Whether the files and folders of the device are there that the module uses, with the rights that it needs.
#pragma once

void checkPlaces();
