Header( 1 55 54 8 7 )

VTPFileHeader( 0x100 )

VTPIndexList( 0
        )

VTPTextureList( 1 100 2 0 0 4 )

VTPEnd

