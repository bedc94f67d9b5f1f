package kxbench;

import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import kxtest.FakePernix;
import orvane.str.diskarray.CreateRaidGroup;
import orvane.str.diskarray.CreateRgDrive;

/**
 * The largest input record: a RAID group over 450 drives, read from Java into
 * the 3628-byte record handed to the library.  The native's result is the
 * record as the library received it.
 */
public final class CreateRaidGroupCase extends Case {
    private static final String FN = "KX_CreateRaidGroup";
    private static final int SIZE = 3628;
    private final CreateRaidGroup create = new CreateRaidGroup();

    public CreateRaidGroupCase() {
        super(FN, 2, 0);
        create.create_mode = 1;
        create.rgnum = 17;
        create.level = 6;
        create.drive_type = 3;
        create.drive_capa = 0x7FFF00;
        create.parity_hdu_count = 2;
        create.parity_count = 25;
        create.rgdrv = new CreateRgDrive[450];
        for (int i = 0; i < 450; i++) {
            CreateRgDrive d = new CreateRgDrive();
            d.unit_no = i / 24;
            d.hdu_no = i % 24;
            create.rgdrv[i] = d;
        }
    }

    @Override
    protected void fillRecord(ByteBuffer buf) {}

    @Override
    public Object input() {
        return create;
    }

    @Override
    public boolean builds() {
        return false;
    }

    @Override
    public void script(boolean quiet) {
        FakePernix.reset();
    }

    @Override
    public Object callNative() {
        JNI.KX_CreateRaidGroup(UNIT, SESSION, create);
        return Boolean.TRUE;
    }

    @Override
    public Object result(Object returned) {
        return FakePernix.arg(FN, 0, 2);
    }

    @Override
    public Object buildFloor() {
        ByteBuffer b = ByteBuffer.allocate(SIZE).order(ByteOrder.LITTLE_ENDIAN);
        CreateRaidGroup c = create;
        b.putInt(c.create_mode).putInt(c.rgnum).putInt(c.level).putInt(c.drive_type).putInt(c.drive_capa)
            .putInt(c.parity_hdu_count).putInt(c.parity_count);
        for (int i = 0; i < Math.min(c.rgdrv.length, 450); i++) {
            CreateRgDrive d = c.rgdrv[i];
            if (d == null) continue;
            b.putInt(28 + 8 * i, d.unit_no).putInt(32 + 8 * i, d.hdu_no);
        }
        return b.array();
    }

    @Override
    public Object buildJni(boolean lax) {
        return HandJni.createRaidGroup(create, lax);
    }
}
