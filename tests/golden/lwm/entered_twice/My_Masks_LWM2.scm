Set( BUF 8192 )

Header( 1 55 54 8 7 )

LWMFileHeader

:cell00

LWMAreaDrawPoly( 1 3 5 8 )

LWMPoly( 8 1 1 
   80 0
   80 45
   150 45
   150 0
   180 0
   180 95
   50 95
   50 0
     )
LWMAreaDrawPoly( 1 3 5 7 )

LWMPoly( 4 1 1 
   150 255
   150 200
   180 200
   180 255
     )
LWMAreaDrawPoly( 1 3 5 7 )

LWMPoly( 4 1 1 
   50 255
   50 200
   80 200
   80 255
     )

LWMIndexList( 1
        400 100 3 0 0
        )

LWMEnd

