// Sources that the tests start from.
#pragma once

namespace landsmith::simtools::test {

/// One road of a place and three steps; valid. Tests count its lines.
inline constexpr const char* OneRoad =
    "Set( BUF 8192 )\n"                      // 1
    "\n"                                     // 2
    "Header( 1 48 47 9 8 )\n"                // 3
    "\n"                                     // 4
    "VTPFileHeader\n"                        // 5
    "\n"                                     // 6
    ":cell00\n"                              // 7
    "\n"                                     // 8
    "VTPArea( 1 1 17 24 )\n"                 // 9
    "VTPLayer( 13 1 1 0 )\n"                 // 10
    "VTPTexID( 0 0 )\n"                      // 11
    "VTPPolyCount( 1 )\n"                    // 12
    "\n"                                     // 13
    ";a road (one of many) \"quoted\n"       // 14
    "   VTPPoly( 2 4 1 )\n"                  // 15
    "      VTPWPoint( 5000 6000 3 12 )\n"    // 16
    "         VTPCPoint( 12 -7 )\n"          // 17
    "         VTPCPoint( 1022 -1022 13 )\n"  // 18
    "         VTPCPoint( -1 0 )\n"           // 19
    "\n"                                     // 20
    "\n"                                     // 21
    "VTPIndexList( 1\n"                      // 22
    "        401 120 0\n"                    // 23
    "        )\n"                            // 24
    "\n"                                     // 25
    "VTPTextureList( 1\n"                    // 26
    "        153 0 0 0 4\n"                  // 27
    "        )\n"                            // 28
    "\n"                                     // 29
    "VTPEnd\n"                               // 30
    "\n";

}  // namespace landsmith::simtools::test
