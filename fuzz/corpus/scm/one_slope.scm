Header( 1 -34 -35 -70 -71 )
LWMFileHeader( 0x300 )
:cell00
LWMAreaDrawPoly( 1 2 0 31 )
LWMPoly3( 3 2 -0.25 100
   0 0 0
   255 0 128
   255 255 255
     )
LWMIndexList( 1 767 511 2 0 0 )
LWMEnd
