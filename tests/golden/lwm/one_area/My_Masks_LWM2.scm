Set( BUF 8192 )

Header( 1 55 54 8 7 )

LWMFileHeader

:cell00

LWMAreaDrawPoly( 1 3 5 7 )

LWMPoly( 3 0 12.5 
   100 100
   200 100
   150 200
     )
LWMAreaDrawPoly( 1 2 5 7 )

LWMPoly( 3 2 -1234.568 
   60 60
   10 60
   10 10
     )

LWMIndexList( 1
        400 100 3 0 0
        )

LWMEnd

