Set( BUF 8192 )

Header( 1 55 54 8 7 )

LWMFileHeader

:cell00

LWMAreaDrawPoly( 1 3 5 8 )

LWMPoly( 4 0 3 
   255 100
   155 100
   155 0
   255 0
     )
LWMAreaDrawPoly( 1 3 6 8 )

LWMPoly( 4 0 3 
   100 0
   100 100
   0 100
   0 0
     )
LWMAreaDrawPoly( 1 3 5 7 )

LWMPoly( 4 0 3 
   155 255
   155 155
   255 155
   255 255
     )
LWMAreaDrawPoly( 1 3 6 7 )

LWMPoly( 4 0 3 
   0 155
   100 155
   100 255
   0 255
     )

LWMIndexList( 1
        400 100 3 0 0
        )

LWMEnd

