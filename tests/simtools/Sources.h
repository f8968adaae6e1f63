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

/// A polygon of vector terrain in one Cell, exclusions in another; valid.
inline constexpr const char* OneAreaAndExclusions =
    "Set( BUF 8192 )\n"                // 1
    "Header( 1 48 47 9 8 )\n"          // 2
    "VTPFileHeader( 0x100 )\n"         // 3
    "\n"                               // 4
    ":cell00\n"                        // 5
    "VTPArea( 1 1 17 24 )\n"           // 6
    "VTPLayer( 4 0 1 0 )\n"            // 7
    "VTPTexID( 0 0 )\n"                // 8
    "VTPPolyCount( 1 )\n"              // 9
    "\n"                               // 10
    "   VTPPoly( 2 3 0 )\n"            // 11
    "      VTPPointXY( 4079 4079 )\n"  // 12
    "      VTPPointXY( 8160 5000 )\n"  // 13
    "      VTPPointXY( 0 65535 )\n"    // 14
    "\n"                               // 15
    ":cell01\n"                        // 16
    "\n"                               // 17
    "VTPArea( 2 0 7 31 )\n"            // 18
    "    VTPLayer( 64 1 0 0 )\n"       // 19
    "    VTPLayer( 100 1 0 0 )\n"      // 20
    "VTPArea( 0 0 8 31 )\n"            // 21
    "\n"                               // 22
    "VTPIndexList( 2\n"                // 23
    "        401 120 0\n"              // 24
    "        402 121 0\n"              // 25
    "        )\n"                      // 26
    "\n"                               // 27
    "VTPTextureList( 1\n"              // 28
    "100 2 0 0 4 )\n"                  // 29
    "\n"                               // 30
    "VTPEnd\n";                        // 31

/// A fill and a water polygon; valid.
inline constexpr const char* OneLake =
    "Set( BUF 8192 )\n"               // 1
    "\n"                              // 2
    "Header( 1 48 47 9 8 )\n"         // 3
    "\n"                              // 4
    "LWMFileHeader\n"                 // 5
    "\n"                              // 6
    ":cell00\n"                       // 7
    "\n"                              // 8
    "LWMAreaFill( 4 0 3 2 12.5 )\n"   // 9
    "LWMAreaDrawPoly( 1 3 17 24 )\n"  // 10
    "\n"                              // 11
    "LWMPoly( 3 0 -3.5 \n"            // 12
    "   0 10\n"                       // 13
    "   255 20\n"                     // 14
    "   128 255\n"                    // 15
    "     )\n"                        // 16
    "\n"                              // 17
    "LWMIndexList( 1\n"               // 18
    "        401 120 3 0 0\n"         // 19
    "        )\n"                     // 20
    "\n"                              // 21
    "LWMEnd\n";                       // 22

/// A sloped polygon in a Cell that is flatten as a whole; valid.
inline constexpr const char* OneSlope =
    "Header( 1 -34 -35 -70 -71 )\n"      // 1
    "LWMFileHeader( 0x300 )\n"           // 2
    ":cell00\n"                          // 3
    "LWMAreaDrawPoly( 1 2 0 31 )\n"      // 4
    "LWMPoly3( 3 2 -0.25 100\n"          // 5
    "   0 0 0\n"                         // 6
    "   255 0 128\n"                     // 7
    "   255 255 255\n"                   // 8
    "     )\n"                           // 9
    "LWMIndexList( 1 767 511 2 0 0 )\n"  // 10
    "LWMEnd\n";                          // 11

/// A textured polygon with a night texture, and one of its material alone; valid.
inline constexpr const char* TwoSurfaces =
    "Header( 1 49 46 10 7 )\n"                                                                         // 1
    "LatRange( 46 49 )\n"                                                                              // 2
    "\n"                                                                                               // 3
    "; Textured Poly # 1\n"                                                                            // 4
    "\n"                                                                                               // 5
    "Area( 5 47.25000000 8.50000000 50 )\n"                                                            // 6
    "LayerCall( :lcall 4 )\n"                                                                          // 7
    "Jump( : )\n"                                                                                      // 8
    ":lcall\n"                                                                                         // 9
    "RefPoint( 2 :return 1 47.25000000 8.50000000 E= 430.50000000 v1= 5000 v2= 163 )\n"                // 10
    "BGLVersion( 0800 )\n"                                                                             // 11
    "TextureList( 0 \n"                                                                                // 12
    "       6 FF 255 255 255 0 50.000000 roof.bmp\n"                                                   // 13
    "     256 FF 255 255 255 0 50.000000 roof_lm.bmp\n"                                                // 14
    "       )\n"                                                                                       // 15
    "MaterialList( 0   0.502 0.502 0.000 1.00   0.00 0.00 0.00 1.00   0.00 0.00 0.00 1.00   0.00 )\n"  // 16
    "VertexList( 0 \n"                                                                                 // 17
    "      -0037.7340 0000.0000000  0055.6650 0.0 1.0 0.0 00.000 02.500 ; vertex #000\n"               // 18
    "       0037.7340 0000.0000000  0055.6650 0.0 1.0 0.0 03.000 02.500 ; vertex #001\n"               // 19
    "       0000.0000 -0001.5000000 -0111.3300 0.0 1.0 0.0 01.500 00.000 ; vertex #002\n"              // 20
    "       )\n"                                                                                       // 21
    "SetMaterial( 0 0 )\n"                                                                             // 22
    "DrawTriList( 0 \n"                                                                                // 23
    "       002 001 000\n"                                                                             // 24
    "       )\n"                                                                                       // 25
    "EndVersion\n"                                                                                     // 26
    ":return\n"                                                                                        // 27
    "Return\n"                                                                                         // 28
    "EndA\n"                                                                                           // 29
    "\n"                                                                                               // 30
    "; Textured Poly # 2\n"                                                                            // 31
    "\n"                                                                                               // 32
    "Area( 5 47.25000000 8.50000000 50 )\n"                                                            // 33
    "LayerCall( :lcall 4 )\n"                                                                          // 34
    "Jump( : )\n"                                                                                      // 35
    ":lcall\n"                                                                                         // 36
    "RefPoint( 2 :return 1 47.25000000 8.50000000 E= 0.00000000 v1= 5000 v2= 20 )\n"                   // 37
    "BGLVersion( 0800 )\n"                                                                             // 38
    "MaterialList( 0   0.502 0.502 0.000 1.00   0.00 0.00 0.00 1.00   0.00 0.00 0.00 1.00   0.00 )\n"  // 39
    "VertexList( 0 1 0 0 0 1 0 0 0  2 0 0 0 1 0 0 0  2 0 1 0 1 0 0 0 )\n"                              // 40
    "SetMaterial( 0 -1 )\n"                                                                            // 41
    "DrawTriList( 0 0 1 2 )\n"                                                                         // 42
    "EndVersion\n"                                                                                     // 43
    ":return\n"                                                                                        // 44
    "Return\n"                                                                                         // 45
    "EndA\n";                                                                                          // 46

}  // namespace landsmith::simtools::test
