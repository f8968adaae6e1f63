// What a compiled BGL file holds, for tests that draw, compile and read back:
//   ReadLwmFile(bytes): cells with their fills and their pieces (Area, kind, altitudes, points)
//   ReadVtpFile(bytes): textures, records (Areas and the layers that they replace), lines and polygons
#pragma once

#include "support/LwmFileReader.h"
#include "support/VtpFileReader.h"
