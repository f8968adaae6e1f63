Set( BUF 8192 )

Header( 1 55 54 8 7 )

LWMFileHeader( 0x300 )

:cell00

LWMAreaDrawPoly( 1 2 5 8 )

LWMPoly3( 4 2 10.5 30.5 
   255 100 127
   155 100 0
   155 0 0
   255 0 127
     )
LWMAreaDrawPoly( 1 2 6 8 )

LWMPoly3( 4 2 10.5 30.5 
   100 0 255
   100 100 255
   0 100 127
   0 0 127
     )
LWMAreaDrawPoly( 1 2 5 7 )

LWMPoly3( 4 2 10.5 30.5 
   155 255 0
   155 155 0
   255 155 127
   255 255 127
     )
LWMAreaDrawPoly( 1 2 6 7 )

LWMPoly3( 4 2 10.5 30.5 
   0 155 127
   100 155 255
   100 255 255
   0 255 127
     )

LWMIndexList( 1
        400 100 3 0 0
        )

LWMEnd

