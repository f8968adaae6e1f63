Header( 1 49 46 10 7 )
LatRange( 46 49 )

; Textured Poly # 1

Area( 5 47.25000000 8.50000000 50 )
LayerCall( :lcall 4 )
Jump( : )
:lcall
RefPoint( 2 :return 1 47.25000000 8.50000000 E= 430.50000000 v1= 5000 v2= 163 )
BGLVersion( 0800 )
TextureList( 0 
       6 FF 255 255 255 0 50.000000 roof.bmp
     256 FF 255 255 255 0 50.000000 roof_lm.bmp
       )
MaterialList( 0   0.502 0.502 0.000 1.00   0.00 0.00 0.00 1.00   0.00 0.00 0.00 1.00   0.00 )
VertexList( 0 
      -0037.7340 0000.0000000  0055.6650 0.0 1.0 0.0 00.000 02.500 ; vertex #000
       0037.7340 0000.0000000  0055.6650 0.0 1.0 0.0 03.000 02.500 ; vertex #001
       0000.0000 -0001.5000000 -0111.3300 0.0 1.0 0.0 01.500 00.000 ; vertex #002
       )
SetMaterial( 0 0 )
DrawTriList( 0 
       002 001 000
       )
EndVersion
:return
Return
EndA

; Textured Poly # 2

Area( 5 47.25000000 8.50000000 50 )
LayerCall( :lcall 4 )
Jump( : )
:lcall
RefPoint( 2 :return 1 47.25000000 8.50000000 E= 0.00000000 v1= 5000 v2= 20 )
BGLVersion( 0800 )
MaterialList( 0   0.502 0.502 0.000 1.00   0.00 0.00 0.00 1.00   0.00 0.00 0.00 1.00   0.00 )
VertexList( 0 1 0 0 0 1 0 0 0  2 0 0 0 1 0 0 0  2 0 1 0 1 0 0 0 )
SetMaterial( 0 -1 )
DrawTriList( 0 0 1 2 )
EndVersion
:return
Return
EndA
