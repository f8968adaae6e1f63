Header( 1 56 54 9 7 )

LWMFileHeader

:cell00

LWMAreaFill( 1 0 0 0 1 )

:cell01

LWMAreaFill( 32 2 0 0 4.1 )
LWMAreaFill( 1 1 9 9 )

:cell02

LWMAreaFill( 1 0 31 30 12.5 )
LWMAreaFill( 2 1 15 3 )
LWMAreaFill( 4 2 7 1 1234.568 )
LWMAreaFill( 8 0 3 2 -3 )
LWMAreaFill( 16 2 1 0 0 )

:cell03


LWMIndexList( 4
        0 0 3 0 0
        402 99 3 0 0
        400 100 3 0 0
        401 100 0 0 0
        )

LWMEnd

