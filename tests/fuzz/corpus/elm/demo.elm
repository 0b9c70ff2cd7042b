
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
            <stage name="Facade" id="{6f1c2a1e-3b7d-4c55-9e0a-1d2b3c4d5e6f}" width="1920" height="1080" merge="False" hidden="False" locked="False">
                <fixtures>
                    <fixture group="Ring" group2="" ledType="RGBW" dmxProtocol="ArtNet" startUniverse="0" startAddress="0" breakUniverseAfter="0">
                        <geometry nbLeds="60" type="curve" rotation="0" loop="True">
                            <points>
                                <point x="400" y="100"/>
                                <point x="500" y="200"/>
                                <point x="400" y="300"/>
                                <point x="300" y="200"/>
                            </points>
                        </geometry>
                    </fixture>
                    <fixture group="Eaves" group2="" ledType="GRB" dmxProtocol="ArtNet" startUniverse="1" startAddress="0" breakUniverseAfter="0">
                        <geometry nbLeds="200" type="line" rotation="0">
                            <points>
                                <point x="20" y="400"/>
                                <point x="1000" y="400"/>
                                <point x="1000" y="600"/>
                            </points>
                        </geometry>
                    </fixture>
                    <fixture group="Bar" group2="" ledType="RGB16" dmxProtocol="ArtNet" startUniverse="3" startAddress="0" breakUniverseAfter="16">
                        <geometry nbLeds="32" type="line" rotation="90">
                            <points>
                                <point x="600" y="700"/>
                                <point x="920" y="700"/>
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
                    <universe id="1" IP="192.0.2.2"/>
                    <universe id="2" IP="192.0.2.2"/>
                </universes>
            </artnet>
        </output>
    </model>
</console>