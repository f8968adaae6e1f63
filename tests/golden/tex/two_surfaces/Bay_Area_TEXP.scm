Header( 1 61 -1 11 -31 )
LatRange( -1 61 )

; Textured Poly # 3

Area( 5 60.00000000 10.00100000 50 )
LayerCall( :lcall 4 )
Jump( : )
:lcall
RefPoint( 2 :return 1 60.00000000 10.00100000 E= 11.00000000 v1= 5000 v2= 249 )
BGLVersion( 0800 )
TextureList( 0 
       6 FF 255 255 255 0 50.000000 Zürich.bmp
     256 FF 255 255 255 0 50.000000 Zürich_lm.bmp
       )
MaterialList( 0   1.000 0.502 0.000 1.00   0.00 0.00 0.00 1.00   0.00 0.00 0.00 1.00   0.00 )
VertexList( 0 
      -0055.6650 -0001.0000000 -0111.3300 0.0 1.0 0.0 00.000 00.000 ; vertex #000
       0000.0000 0002.0000000  0222.6600 0.0 1.0 0.0 01.328 01.000 ; vertex #001
       0055.6650 -0001.0000000 -0111.3300 0.0 1.0 0.0 02.672 00.000 ; vertex #002
       )
SetMaterial( 0 0 )
DrawTriList( 0 
       002 001 000
       )
EndVersion
:return
Return
EndA

; Textured Poly # 4

Area( 5 0.00000000 -30.00000000 50 )
LayerCall( :lcall 8 )
Jump( : )
:lcall
RefPoint( 2 :return 1 0.00000000 -30.00000000 E= 0.00000000 v1= 3000 v2= 830 )
BGLVersion( 0800 )
MaterialList( 0   0.000 0.000 0.200 1.00   0.00 0.00 0.00 1.00   0.00 0.00 0.00 1.00   0.00 )
VertexList( 0 
       0000.0000 0001.2500000  0779.3100 0.0 1.0 0.0 00.500 03.000 ; vertex #000
       0222.6600 0000.0000000 -0333.9900 0.0 1.0 0.0 00.977 -00.094 ; vertex #001
       0000.0000 0000.2500000 -0111.3300 0.0 1.0 0.0 00.469 00.750 ; vertex #002
      -0222.6600 -0001.5000000 -0333.9900 0.0 1.0 0.0 00.004 00.023 ; vertex #003
       )
SetMaterial( 0 -1 )
DrawTriList( 0 
       002 001 000
       003 002 000
       )
EndVersion
:return
Return
EndA

