Set( BUF 8192 )

Header( 1 -15 -16 149 148 )

LWMFileHeader

:cell00

LWMAreaDrawPoly( 1 2 1 1 )

LWMPoly( 3 2 100.25 
   10 10
   60 10
   60 60
     )

LWMIndexList( 1
        700 300 3 0 0
        )

LWMEnd

