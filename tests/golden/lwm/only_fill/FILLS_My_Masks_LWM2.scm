Header( 1 -89 90 -179 180 )

LWMFileHeader

:cell00

LWMAreaFill( 16 1 1 1 )

LWMIndexList( 1
        400 100 3 0 0
        )

LWMEnd

