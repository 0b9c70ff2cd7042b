
<console version="1" appVersion="1.0.0.673">
    <view>
        <stage name="View of stage" id="{6f1c2a1e-3b7d-4c55-9e0a-1d2b3c4d5e6f}" width="1920" height="1080" merge="False" hidden="False" locked="False">
            <fixtures>
                <fixture group="Strips" group2="" ledType="RGB" dmxProtocol="ArtNet" startUniverse="0" startAddress="0" breakUniverseAfter="0">
                    <geometry nbLeds="10" type="line" rotation="0">
                        <points>
                            <point x="0" y="0"/>
                            <point x="90" y="0"/>
                        </points>
                    </geometry>
                </fixture>
            </fixtures>
        </stage>
    </view>
    <model>
        <stages>
            <stage name="Stage 1" id="{6f1c2a1e-3b7d-4c55-9e0a-1d2b3c4d5e6f}" width="1920" height="1080" merge="False" hidden="False" locked="False">
                <fixtures>
                    <fixture group="Strips" group2="" ledType="RGB" dmxProtocol="ArtNet" startUniverse="0" startAddress="0" breakUniverseAfter="0">
                        <geometry nbLeds="10" type="line" rotation="0">
                            <points>
                                <point x="0" y="0"/>
                                <point x="90" y="0"/>
                            </points>
                        </geometry>
                    </fixture>
                </fixtures>
            </stage>
        </stages>
        <sequences>
            <sequence>
                <stage name="Stage 1" id="{6f1c2a1e-3b7d-4c55-9e0a-1d2b3c4d5e6f}" width="1920" height="1080" merge="False" hidden="False" locked="False">
                    <fixtures>
                        <fixture group="Strips" group2="" ledType="RGB" dmxProtocol="ArtNet" startUniverse="0" startAddress="0" breakUniverseAfter="0">
                            <geometry nbLeds="10" type="line" rotation="0">
                                <points>
                                    <point x="0" y="0"/>
                                    <point x="90" y="0"/>
                                </points>
                            </geometry>
                        </fixture>
                    </fixtures>
                </stage>
            </sequence>
        </sequences>
        <output>
            <artnet>
                <universes>
                    <universe id="0" IP="192.0.2.2"/>
                </universes>
            </artnet>
        </output>
    </model>
</console>