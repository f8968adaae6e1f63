Set( BUF 8192 )

Header( 1 55 54 8 7 )

LWMFileHeader

:cell00

LWMAreaDrawPoly( 1 3 4 8 )

LWMPoly( 4 1 0 
   255 60
   200 60
   200 0
   255 0
     )
LWMAreaDrawPoly( 1 3 5 8 )

LWMPoly( 4 1 0 
   255 60
   0 60
   0 0
   255 0
     )
LWMAreaDrawPoly( 1 3 6 8 )

LWMPoly( 4 1 0 
   50 0
   50 60
   0 60
   0 0
     )
LWMAreaDrawPoly( 1 3 4 7 )

LWMPoly( 4 1 0 
   200 255
   200 0
   255 0
   255 255
     )
LWMAreaDrawPoly( 1 3 5 7 )

LWMPoly( 4 1 0 
   0 0
   255 0
   255 255
   0 255
     )
LWMAreaDrawPoly( 1 3 6 7 )

LWMPoly( 4 1 0 
   50 0
   50 255
   0 255
   0 0
     )
LWMAreaDrawPoly( 1 3 4 6 )

LWMPoly( 4 1 0 
   200 255
   200 200
   255 200
   255 255
     )
LWMAreaDrawPoly( 1 3 5 6 )

LWMPoly( 4 1 0 
   0 200
   255 200
   255 255
   0 255
     )
LWMAreaDrawPoly( 1 3 6 6 )

LWMPoly( 4 1 0 
   0 200
   50 200
   50 255
   0 255
     )

LWMIndexList( 1
        400 100 3 0 0
        )

LWMEnd

