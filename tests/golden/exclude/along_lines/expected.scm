Header( 1 55 54 8 7 )

VTPFileHeader( 0x100 )

:cell00

VTPArea( 1 0 4 5 )
    VTPLayer( 4 1 0 0 )

VTPArea( 1 0 5 5 )
    VTPLayer( 4 1 0 0 )

VTPArea( 1 0 6 5 )
    VTPLayer( 4 1 0 0 )

VTPArea( 1 0 7 5 )
    VTPLayer( 4 1 0 0 )

VTPArea( 1 0 4 4 )
    VTPLayer( 4 1 0 0 )

VTPArea( 1 0 5 4 )
    VTPLayer( 4 1 0 0 )

VTPArea( 1 0 6 4 )
    VTPLayer( 4 1 0 0 )

VTPArea( 1 0 7 4 )
    VTPLayer( 4 1 0 0 )

VTPIndexList( 1
        400 100 0
        )

VTPTextureList( 1 100 2 0 0 4 )

VTPEnd

