package kxtest;

import static org.junit.Assert.*;

import orvane.str.diskarray.*;
import org.junit.Test;

/** Record classes that lack a field or leave an array unmade. */
public class AccountFieldsTest extends BridgeTest {
    @Test
    public void resultsLackingAFieldReport2817() {
        // a nested record, an element of a table of roles, an element inside a nested record
        assertEquals(2817, code(() -> jni.KX_GetAccountOption("u", new KXSessionInfo())));
        assertEquals(2817, code(() -> jni.KX_GetKXAccountRoleInformation("u", new KXSessionInfo())));
        assertEquals(2817, code(() -> jni.KX_GetKXAuditLogInformation("u", new KXSessionInfo())));
        assertEquals(3, FakePernix.log().length);
    }

    @Test
    public void importedElementsThatCannotBeBuiltStayNull() {
        FakePernix.willWriteInt("KX_FibreInfoPermissionImport", 4, 3);
        FibreInformationPermission.throwing = false;
        FibreInformationPermission.failAt = FibreInformationPermission.made + 1;  // no bitmap from now on
        try {
            assertArrayEquals(new FibreInformationPermission[3], jni.KX_FibreInfoPermissionImport("u", "/p", 0, 0));
        } finally {
            FibreInformationPermission.failAt = Integer.MAX_VALUE;
        }
    }

    @Test
    public void importPastItsTableTriesEveryRecordOfTheTableAndNoMore() {
        FakePernix.willWriteInt("KX_FibreInfoPermissionImport", 4, 200);
        FibreInformationPermission.throwing = false;
        int before = FibreInformationPermission.made;
        FibreInformationPermission.failAt = before + 2;  // the second on holds no bitmap
        try {
            FibreInformationPermission[] got = jni.KX_FibreInfoPermissionImport("u", "/p", 0, 0);
            assertEquals(128, got.length);
            assertNotNull(got[0]);
            for (int i = 1; i < 128; i++) assertNull(got[i]);
            assertEquals(before + 128, FibreInformationPermission.made);

            // A constructor that throws: its error reaches the caller and nothing more is made.
            FibreInformationPermission.throwing = true;
            before = FibreInformationPermission.made;
            FibreInformationPermission.failAt = before + 2;
            assertEquals(IllegalStateException.class,
                    thrown(() -> jni.KX_FibreInfoPermissionImport("u", "/p", 0, 0)).getClass());
            assertEquals(before + 2, FibreInformationPermission.made);

            // A negative count is refused before anything is made.
            FakePernix.willWriteInt("KX_FibreInfoPermissionImport", 4, -1);
            before = FibreInformationPermission.made;
            assertEquals(2817, code(() -> jni.KX_FibreInfoPermissionImport("u", "/p", 0, 0)));
            assertEquals(before, FibreInformationPermission.made);
        } finally {
            FibreInformationPermission.failAt = Integer.MAX_VALUE;
            FibreInformationPermission.throwing = false;
        }
    }
}
