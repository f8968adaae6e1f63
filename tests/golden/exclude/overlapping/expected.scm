Header( 1 55 54 8 7 )

VTPFileHeader( 0x100 )

:cell00

VTPArea( 2 0 0 31 )
    VTPLayer( 7 1 0 0 )
    VTPLayer( 25 1 0 0 )

:cell01

VTPArea( 3 0 5 9 )
    VTPLayer( 1 1 0 0 )
    VTPLayer( 26 1 0 0 )
    VTPLayer( 100 1 0 0 )

VTPArea( 3 0 6 9 )
    VTPLayer( 1 1 0 0 )
    VTPLayer( 26 1 0 0 )
    VTPLayer( 100 1 0 0 )

VTPArea( 4 0 7 9 )
    VTPLayer( 1 1 0 0 )
    VTPLayer( 26 1 0 0 )
    VTPLayer( 100 1 0 0 )
    VTPLayer( 4 1 0 0 )

VTPArea( 3 0 5 8 )
    VTPLayer( 1 1 0 0 )
    VTPLayer( 26 1 0 0 )
    VTPLayer( 100 1 0 0 )

VTPArea( 3 0 6 8 )
    VTPLayer( 1 1 0 0 )
    VTPLayer( 26 1 0 0 )
    VTPLayer( 100 1 0 0 )

VTPArea( 3 0 7 8 )
    VTPLayer( 1 1 0 0 )
    VTPLayer( 26 1 0 0 )
    VTPLayer( 100 1 0 0 )

VTPArea( 3 0 5 7 )
    VTPLayer( 1 1 0 0 )
    VTPLayer( 26 1 0 0 )
    VTPLayer( 100 1 0 0 )

VTPArea( 3 0 6 7 )
    VTPLayer( 1 1 0 0 )
    VTPLayer( 26 1 0 0 )
    VTPLayer( 100 1 0 0 )

VTPArea( 3 0 7 7 )
    VTPLayer( 1 1 0 0 )
    VTPLayer( 26 1 0 0 )
    VTPLayer( 100 1 0 0 )

VTPArea( 2 0 8 9 )
    VTPLayer( 4 1 0 0 )
    VTPLayer( 26 1 0 0 )

VTPIndexList( 2
        401 99 0
        400 100 0
        )

VTPTextureList( 1 100 2 0 0 4 )

VTPEnd

