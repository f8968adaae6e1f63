Set( BUF 8192 )

Header( 1 48 47 9 8 )

LWMFileHeader

:cell00

LWMAreaFill( 4 0 3 2 12.5 )
LWMAreaDrawPoly( 1 3 17 24 )

LWMPoly( 3 0 -3.5 
   0 10
   255 20
   128 255
     )

LWMIndexList( 1
        401 120 3 0 0
        )

LWMEnd
