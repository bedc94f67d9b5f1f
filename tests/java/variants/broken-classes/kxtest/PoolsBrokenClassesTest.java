package kxtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;

import orvane.str.diskarray.*;
import org.junit.Test;

/**
 * Record classes of the pool, wizard and LU cache families that lack a field,
 * hold one of another type, cannot be constructed or cannot be loaded: the
 * getters report 2817, the quiet ones leave the JVM's own error, readers stop
 * at the broken field.
 */
public class PoolsBrokenClassesTest extends BridgeTest {
    static final KXSessionInfo S = new KXSessionInfo();

    @Test
    public void gettersReport2817() {
        assertEquals(2817, code(() -> jni.KX_GetPoolInformation("u", S)));  // PoolDetailInfo cannot be loaded
        assertEquals(2817, code(() -> jni.KX_IntegrationLUInfo2("u", S)));
        assertEquals(2817, code(() -> jni.KX_RaidLuImportEx("u", S, "f")));
        assertEquals(2817, code(() -> jni.KX_GetWizardParam("u", "f", 0)));
        // The import's groups are built, its first LU is not: the whole import fails, unlike the lists.
        assertEquals(2817, code(() -> jni.KX_RaidLuImport("u", "f")));
    }

    @Test
    public void quietNativesLeaveTheJvmsOwnError() {
        FakePernix.willWriteInt("KX_GetLabelList", 1, 2);
        assertEquals(NoSuchMethodError.class, thrown(() -> jni.KX_GetLabelList()).getClass());
        FakePernix.willWriteInt("KX_GetLabelList2", 1, Integer.MAX_VALUE);
        assertEquals(NoSuchMethodError.class, thrown(() -> jni.KX_GetLabelList2()).getClass());
        FakePernix.willWriteInt("KX_GetLabelList", 1, 0);  // nothing to build
        assertEquals(0, jni.KX_GetLabelList().length);
        FakePernix.willWriteInt("KX_GetLabelList", 1, -1);  // refused before any label is looked at
        assertEquals(2817, code(() -> jni.KX_GetLabelList()));
        assertEquals(NoSuchFieldError.class, thrown(() -> jni.KX_GetTurboLU("u", S)).getClass());
    }

    @Test
    public void turboSetterRefusesWhatItCannotReadAndOthersSendWhatTheyRead() {
        TurboLu t = new TurboLu();
        t.ctl = new TurboLu_info[] {new TurboLu_info()};
        assertEquals(2817, code(() -> jni.KX_SetTurboLU("u", S, t)));
        assertEquals(0, FakePernix.calls("KX_SetTurboLU"));

        WizardParam w = new WizardParam();
        w.fd_backup = 9;
        w.dual_conf = new WZDualConfig();
        w.drive_capacity = new WZDriveCapacity();
        w.option = new WZOption();
        w.e_option = new WZEnhancedOption();
        w.e_option2 = new WZEnhancedOption();
        w.target_id = new WZTargetId[0];
        w.mode_param = new WZModeParam();
        w.inquiry = new WZInquiry();
        w.port_type = new WZPortType[0];
        w.rom_response = new WZRomResponse[0];
        w.ctl_opt = new WZControllerOption[0];
        w.lan_conf = new WZLanConfig[0];
        WZSyncControl sync = new WZSyncControl();
        sync.port_val = new WZSyncPort[] {new WZSyncPort(), new WZSyncPort()};
        sync.port_val[0].board_type = 5;
        sync.port_val[1].board_type = 6;
        w.sync_control = new WZSyncControl[] {sync, sync};
        assertEquals(NoSuchFieldError.class, thrown(() -> jni.KX_SetWizardParam("u", w, "f", 0)).getClass());
        assertEquals(1, FakePernix.calls("KX_SetWizardParam"));
        Rec sent = Rec.wrap(FakePernix.arg("KX_SetWizardParam", 0, 1));
        assertEquals(9, sent.i32(0));
        assertEquals(5, sent.u8(17148));
        assertTrue(sent.zero(17149, 15));
    }
}
